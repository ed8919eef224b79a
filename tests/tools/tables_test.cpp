#include "tools/tables/tables.h"

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/reference_data.h"

namespace tarnwick {
namespace {

using Arguments = std::vector<std::string_view>;

std::string Print(const Arguments& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(RunTables(arguments, out, err, false), kTablesDone);
  EXPECT_EQ(err.str(), "");
  return out.str();
}

// The rows of the table, their cells by the names in its header line.
std::vector<ReferenceRow> Table(const Arguments& arguments) {
  std::istringstream lines(Print(arguments));
  std::string line;
  std::getline(lines, line);
  const std::vector<std::string> names = SplitCells(line);
  std::vector<ReferenceRow> rows;
  while (std::getline(lines, line)) {
    const std::vector<std::string> cells = SplitCells(line);
    EXPECT_EQ(cells.size(), names.size()) << line;
    ReferenceRow& row = rows.emplace_back();
    for (std::size_t i = 0; i < std::min(cells.size(), names.size()); ++i) row[names[i]] = cells[i];
  }
  return rows;
}

TEST(Tables, AreWrittenAsReadersExpect) {
  EXPECT_TRUE(Print({"phases", "2024", "2025"}).starts_with("lunation,phase,tt,ut\n296,3,"));
  EXPECT_TRUE(Print({"eclipses", "2024", "2025"})
                  .starts_with("lunation,phase,type,saros,tt,ut,gamma,magnitude,"
                               "penumbral_magnitude,penumbral,umbral,total\n299,2,8,113,"));
  EXPECT_TRUE(Print({"dates", "2024", "2025"}).starts_with("day_number,weekday,CE,JC,ARC,"));
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

// A printed number: within the tolerance of the one expected, with so many decimals; empty when
// nothing is expected.
void ExpectNumber(const std::string& cell, const std::string& expected, double tolerance,
                  std::size_t decimals) {
  ASSERT_EQ(cell.empty(), expected.empty());
  if (expected.empty()) return;
  EXPECT_NEAR(std::stod(cell), std::stod(expected), tolerance);
  EXPECT_EQ(cell.size() - cell.find('.') - 1, decimals) << cell;
}

struct EclipseKind {
  const char* file;
  const char* phase;
  const char* magnitude;  // its column in the file
};
constexpr EclipseKind kEclipseKinds[] = {{"eclipses_solar.csv", "0", "magnitude"},
                                         {"eclipses_lunar.csv", "2", "umbral_magnitude"}};

// What only the files of lunar eclipses have is empty for solar ones.
std::string CellOrNothing(const ReferenceRow& row, const std::string& name) {
  const auto cell = row.find(name);
  return cell == row.end() ? "" : cell->second;
}

void CompareEclipse(const ReferenceRow& row, const ReferenceRow& expected,
                    const EclipseKind& kind) {
  EXPECT_EQ(row.at("type"), expected.at("type"));
  EXPECT_EQ(row.at("saros"), expected.at("saros"));
  ExpectNumber(row.at("tt"), expected.at("greatest_tt"), 2e-5, 7);
  ExpectNumber(row.at("gamma"), expected.at("gamma"), 2e-4, 5);
  ExpectNumber(row.at("magnitude"), expected.at(kind.magnitude), 3e-4, 5);
  ExpectNumber(row.at("penumbral_magnitude"), CellOrNothing(expected, "penumbral_magnitude"), 3e-4,
               5);
  for (const std::string phase : {"penumbral", "umbral", "total"}) {
    ExpectNumber(row.at(phase), CellOrNothing(expected, phase + "_min"), 0.3, 3);
  }
  // Delta T of 1900 to 2049 lies between -3 and 100 s.
  EXPECT_NEAR((std::stod(row.at("tt")) - std::stod(row.at("ut"))) * 86400, 48.5, 52);
  EXPECT_NE(row.at("tt"), row.at("ut"));
}

// The reference holds every eclipse of 1900 to 2049, and others long before and after.
TEST(Tables, EclipsesAreThoseOfTheReference) {
  const std::vector<ReferenceRow> table = Table({"eclipses", "1900", "2050"});
  std::size_t compared = 0;
  for (const EclipseKind& kind : kEclipseKinds) {
    std::map<std::string, ReferenceRow> by_lunation;
    for (const ReferenceRow& row : table) {
      if (row.at("phase") == kind.phase) by_lunation[row.at("lunation")] = row;
    }
    for (const ReferenceRow& expected : ReadReferenceData(kind.file)) {
      const auto found = by_lunation.find(expected.at("lunation"));
      const double greatest = std::stod(expected.at("greatest_tt"));
      if (greatest < 2415020.5 || greatest > 2469807.5) continue;
      SCOPED_TRACE(std::string(kind.file) + " " + expected.at("lunation"));
      ASSERT_NE(found, by_lunation.end());
      CompareEclipse(found->second, expected, kind);
      ++compared;
    }
  }
  EXPECT_EQ(compared, table.size());
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

TEST(Tables, DatesAgreeWithTheReference) {
  int compared = 0;
  std::map<std::string, ReferenceRow> by_day;
  for (const ReferenceRow& row : Table({"dates", "1890", "1910"}))
    by_day[row.at("day_number")] = row;
  EXPECT_EQ(by_day.size(), 20U * 365 + 4);
  for (const ReferenceRow& expected : ReadReferenceData("dates.csv")) {
    const auto found = by_day.find(expected.at("day_number"));
    if (found == by_day.end()) continue;
    ++compared;
    for (const auto& [name, cell] : found->second) {
      // The lunar week has a reference of its own.
      if (name == "OLW") continue;
      EXPECT_EQ(cell, expected.at(name)) << name;
    }
  }
  EXPECT_GT(compared, 0);
}

TEST(Tables, RefuseWhatTheyCannotPrint) {
  const std::vector<Arguments> bad = {
      {},
      {"phases", "2000"},
      {"moons", "2000", "2001"},
      {"phases", "2001", "2001"},
      {"phases", "-3201", "2001"},
      {"phases", "2001", "6002"},
      {"phases", "2001x", "2002"},
      {"phases", "99999999999", "2002"},
  };
  for (const Arguments& arguments : bad) {
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(RunTables(arguments, out, err, false), kBadArguments);
    EXPECT_EQ(out.str(), "");
    EXPECT_NE(err.str(), "");
  }
  Print({"phases", "-3200", "-3199"});
  Print({"phases", "6000", "6001"});
}

TEST(Tables, ShowTheirProgress) {
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(RunTables(Arguments{"phases", "2000", "2010"}, out, err, true), kTablesDone);
  EXPECT_TRUE(err.str().starts_with("\r0 %\r1 %")) << err.str();
  EXPECT_TRUE(err.str().ends_with("\r99 %\r     \r")) << err.str();
}

// A file on a disk with little room.
class SmallFile : public std::streambuf {
 public:
  explicit SmallFile(int room) : room_(room) {}

 protected:
  int_type overflow(int_type character) override {
    return room_-- > 0 ? traits_type::not_eof(character) : traits_type::eof();
  }
  int sync() override { return room_ > 0 ? 0 : -1; }

 private:
  int room_;
};

TEST(Tables, StopAtOnceWhenTheOutputTakesNoMore) {
  SmallFile file(1000);
  std::ostream out(&file);
  std::ostringstream err;
  EXPECT_EQ(RunTables(Arguments{"phases", "2000", "2100"}, out, err, true), kOutputClosed);
  EXPECT_EQ(err.str(), "\r0 %\r     \r");
}

TEST(Tables, FailWhenTheLastRowsAreLost) {
  const auto length = static_cast<int>(Print({"dates", "2000", "2001"}).size());
  SmallFile file(length);
  std::ostream out(&file);
  std::ostringstream err;
  EXPECT_EQ(RunTables(Arguments{"dates", "2000", "2001"}, out, err, false), kOutputClosed);
}

}  // namespace
}  // namespace tarnwick
