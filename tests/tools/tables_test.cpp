#include "tools/tables/tables.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "tests/tools/printed_table.h"

namespace tarnwick {
namespace {

TEST(Tables, AreWrittenAsReadersExpect) {
  EXPECT_TRUE(Print({"phases", "2024", "2025"}).starts_with("lunation,phase,tt,ut\n296,3,"));
  EXPECT_TRUE(Print({"dates", "2024", "2025"})
                  .starts_with("day_number,weekday,CE,JC,ARC,SD,LLT,KSG,OLW\n"
                               "2460311,1,2024-01-01,2023-12-19,4720-12-20,33-43-10-21,"
                               "124-06-06-3,1-117-06-20,5023-10-3-6\n2460312,2,"));
}

// Almanacs give 13 new moons, 13 last quarters and 12 of the others in 2024; delta T was 69.1 s.
TEST(Tables, HoldThePhasesOfAYear) {
  std::map<std::string, int> count;
  double last = 0;
  for (const ReferenceRow& row : Table({"phases", "2024", "2025"})) {
    ++count[row.at("phase")];
    const double ut = std::stod(row.at("ut"));
    EXPECT_GT(ut, last);
    EXPECT_NEAR((std::stod(row.at("tt")) - ut) * 86400, 69.1, 0.2);
    last = ut;
  }
  EXPECT_EQ(count, (std::map<std::string, int>{{"0", 13}, {"1", 12}, {"2", 12}, {"3", 13}}));
}

// A number with a decimal point: as many decimals, and within 100 units of the last.
void ExpectCell(const std::string& cell, const std::string& expected) {
  const std::size_t point = expected.find('.');
  if (point == std::string::npos) {
    EXPECT_EQ(cell, expected);
    return;
  }
  const std::size_t from_point = expected.size() - point;
  ASSERT_EQ(cell.size() - cell.find('.'), from_point) << cell;
  const double unit = std::pow(10, 1 - static_cast<double>(from_point));
  EXPECT_NEAR(std::stod(cell), std::stod(expected), 100 * unit);
}

// By the reference that the engine is tested against; delta T was 69.1 s.
constexpr char kEclipsesOf2018[] =
    R"(lunation,phase,type,saros,tt,ut,gamma,magnitude,penumbral_magnitude,penumbral,umbral,total
223,2,10,124,2458150.0631950,2458150.0623952,-0.30141,1.31546,2.29414,158.641,101.376,38.037
224,0,1,150,2458165.3698290,2458165.3690292,-1.21163,0.59910,,,,
229,0,1,117,2458312.6265750,2458312.6257752,-1.35423,0.33652,,,,
229,2,10,129,2458327.3492400,2458327.3484402,0.11680,1.60868,2.67922,186.936,117.279,51.476
230,0,1,155,2458341.9079620,2458341.9071622,1.14758,0.73676,,,,
)";

TEST(Tables, HoldTheEclipsesOfAYear) {
  std::istringstream lines(Print({"eclipses", "2018", "2019"}));
  std::istringstream rows(kEclipsesOf2018);
  std::string line;
  for (std::string row; std::getline(rows, row);) {
    ASSERT_TRUE(std::getline(lines, line));
    const std::vector<std::string> cells = SplitCells(line);
    const std::vector<std::string> expected = SplitCells(row);
    ASSERT_EQ(cells.size(), expected.size()) << line;
    for (std::size_t i = 0; i < cells.size(); ++i) ExpectCell(cells[i], expected[i]);
  }
  EXPECT_FALSE(std::getline(lines, line)) << line;
}

struct TurnOfAYear {
  const char* command;
  const char* before;  // the year that ends at the turn
  const char* turn;    // the year that begins at it
  const char* after;
  std::pair<std::string, std::string> event;  // lunation and phase
  bool belongs_before;
};

const TurnOfAYear kTurns[] = {
    // two hours before the turn in Universal Time, two minutes after it in Terrestrial Time
    {"phases", "3311", "3312", "3313", {"16227", "0"}, true},
    // two minutes after it
    {"phases", "2774", "2775", "2776", {"9585", "1"}, false},
    // greatest eclipse 26 s before it, new moon eight minutes after
    {"eclipses", "-56", "-55", "-54", {"-25417", "0"}, true},
};

std::size_t CountOf(const std::vector<ReferenceRow>& rows,
                    const std::pair<std::string, std::string>& event) {
  std::size_t count = 0;
  for (const ReferenceRow& row : rows) {
    if (std::pair(row.at("lunation"), row.at("phase")) == event) ++count;
  }
  return count;
}

TEST(Tables, GiveTheEventsAtTheTurnOfAYearToOneOfThem) {
  for (const TurnOfAYear& turn : kTurns) {
    SCOPED_TRACE(std::string(turn.command) + " " + turn.turn);
    EXPECT_EQ(CountOf(Table({turn.command, turn.before, turn.turn}), turn.event),
              turn.belongs_before ? 1U : 0U);
    EXPECT_EQ(CountOf(Table({turn.command, turn.turn, turn.after}), turn.event),
              turn.belongs_before ? 0U : 1U);
  }
}

TEST(Tables, LoseAndDoubleNothingAtTheTurnOfAYear) {
  for (const char* const command : {"phases", "eclipses", "dates"}) {
    const std::vector<ReferenceRow> both = Table({command, "3309", "3314"});
    std::vector<ReferenceRow> parts;
    for (const auto& [from, to] : {std::pair("3309", "3312"), std::pair("3312", "3314")}) {
      const std::vector<ReferenceRow> part = Table({command, from, to});
      parts.insert(parts.end(), part.begin(), part.end());
    }
    EXPECT_EQ(both, parts) << command;
  }
}

TEST(Tables, TellWhyTheyRefuseACommandLine) {
  const std::pair<TableArguments, std::string> cases[] = {
      {{}, ""},
      {{"moons"}, "unknown command 'moons'"},
      {{"phases", "2000"}, "TO is missing"},
      {{"phases", "2001", "2001"}, ""},
      {{"phases", "-3201", "2001"}, ""},
      {{"phases", "2001", "6002"}, ""},
      {{"phases", "2001x", "2002"}, ""},
      {{"phases", "99999999999", "2002"}, ""},
      {{"phases", "-1", "2", "3"}, "surplus argument '3'"},
      {{"phases", "--isc", "1", "2"}, "phases has no option '--isc'"},
      {{"phases", "--ics=1", "2000", "2001"}, ""},
      {{"dates", "--ics", "2000", "2001"}, ""},
      {{"local", "91", "0", "2000", "2001"}, "a latitude runs from -90 to 90"},
      {{"local", "nan", "0", "2000", "2001"}, "a latitude runs from -90 to 90"},
      {{"local", "-33.9", "-.5", "-3"}, "TO is missing"},
      {{"local", "2000", "2001"}, "FROM is missing"},
      {{"sun_moon", "0", "-180.5", "2000", "2001"}, "a longitude runs from -180 to 180"},
      {{"crescents", "32N", "0", "1", "2"}, "a latitude or longitude is a number of degrees"},
      {{"path", "3"}, "no umbra meets the Earth at that new moon"},
      {{"path", "2000000000"}, "that lunation is out of range"},
      {{"path"}, "LUNATION is missing"},
      {{"convert", "2000"}, ""},
      {{"convert", "--calendar"}, ""},
      {{"convert", "--calendar", "XX"}, ""},
      {{"convert", "--zone"}, "--zone needs +HH:MM behind it"},
      {{"convert", "--zone", "+2"}, ""},
      {{"convert", "--zone", "+02:60"}, ""},
      {{"convert", "--zone", "+14:01"}, ""},
  };
  for (const auto& [arguments, told] : cases) {
    const ToolRun run = RunTool(arguments);
    EXPECT_EQ(run.status, kBadArguments) << told;
    EXPECT_EQ(run.out, "");
    EXPECT_TRUE(run.err.starts_with("tarnwick_tables: " + told)) << run.err;
    EXPECT_NE(run.err.find("\nusage: tarnwick_tables "), std::string::npos) << run.err;
  }
  Print({"phases", "-3200", "-3199"});
  Print({"phases", "6000", "6001"});
}

TEST(Tables, HelpWithEveryCommandThatTheToolNames) {
  std::istringstream lines(Print({"--help"}));
  int commands = 0;
  const std::string usage = "  tarnwick_tables ";
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with(usage)) continue;
    ++commands;
    const std::string name = line.substr(usage.size(), line.find(' ', usage.size()) - usage.size());
    EXPECT_TRUE(Print({name, "--help"}).starts_with("usage: " + line.substr(2) + "\n")) << line;
  }
  EXPECT_EQ(commands, 8);
}

TEST(Tables, ShowTheirProgress) {
  const ToolRun run = RunTool({"phases", "2000", "2010"}, "", true);
  EXPECT_EQ(run.status, kTablesDone);
  EXPECT_TRUE(run.err.starts_with("\r0 %\r1 %")) << run.err;
  EXPECT_TRUE(run.err.ends_with("\r99 %\r     \r")) << run.err;
}

// Takes no more than there is room for, and fails with an error.
class SmallFile : public std::streambuf {
 public:
  SmallFile(int room, int error) : room_(room), error_(error) {}

 protected:
  int_type overflow(int_type character) override {
    if (room_-- > 0) return traits_type::not_eof(character);
    errno = error_;
    return traits_type::eof();
  }
  int sync() override {
    errno = error_;
    return room_ > 0 ? 0 : -1;
  }

 private:
  int room_;
  int error_;
};

// The status and what is told on standard error when the output has so much room.
std::pair<int, std::string> RunInto(int room, int error, const TableArguments& arguments,
                                    bool shows_progress = false) {
  std::istringstream in("2024-01-01 CE\n2024-01-02 CE\n");
  SmallFile file(room, error);
  std::ostream out(&file);
  std::ostringstream err;
  const int status = RunTables(arguments, {in, out, err, shows_progress, kStamp});
  return {status, err.str()};
}

TEST(Tables, StopAtOnceWhenTheOutputTakesNoMore) {
  const std::string told = "tarnwick_tables: cannot write the table: No space left on device\n";
  const auto length = static_cast<int>(Print({"dates", "2000", "2001"}).size());
  const std::tuple<int, TableArguments> cases[] = {
      {1000, {"dates", "2000", "2001"}},
      {length, {"dates", "2000", "2001"}},
      {1000, {"phases", "--ics", "2000", "2001"}},
      {100, {"convert"}},
      {100, {"--help"}},
  };
  for (const auto& [room, arguments] : cases) {
    SCOPED_TRACE(arguments[0]);
    EXPECT_EQ(RunInto(room, EPIPE, arguments), std::pair(kCannotWrite, std::string()));
    EXPECT_EQ(RunInto(room, ENOSPC, arguments), std::pair(kCannotWrite, told));
  }
  EXPECT_EQ(RunInto(1000, EPIPE, {"phases", "2000", "2100"}, true),
            std::pair(kCannotWrite, std::string("\r0 %\r     \r")));
}

}  // namespace
}  // namespace tarnwick
