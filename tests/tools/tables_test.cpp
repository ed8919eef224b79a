#include "tools/tables/tables.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "tests/reference_data.h"

namespace tarnwick {
namespace {

using Rows = std::vector<std::vector<std::string>>;

// The table without its header line.
Rows Table(const std::vector<std::string_view>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(RunTables(arguments, out, err, false), kTablesDone);
  EXPECT_EQ(err.str(), "");
  Rows rows;
  std::istringstream lines(out.str());
  std::string line;
  std::getline(lines, line);
  while (std::getline(lines, line)) rows.push_back(SplitCells(line));
  return rows;
}

// An almanac's count: 2024 had 13 new moons, 13 last quarters and 12 of the others; 8 April saw a
// total solar eclipse, 2 October an annular one, 25 March and 18 September lunar ones.
TEST(Tables, HoldThePhasesAndEclipsesOfAYear) {
  std::map<std::string, int> count;
  double last = 0;
  for (const auto& row : Table({"phases", "2024", "2025"})) {
    ++count[row[1]];
    EXPECT_GT(std::stod(row[3]), last);
    last = std::stod(row[3]);
    EXPECT_NEAR((std::stod(row[2]) - last) * 86400, 69.1, 0.2);
  }
  EXPECT_EQ(count, (std::map<std::string, int>{{"0", 13}, {"1", 12}, {"2", 12}, {"3", 13}}));

  std::vector<std::string> types;
  for (const auto& row : Table({"eclipses", "2024", "2025"})) types.push_back(row[2]);
  EXPECT_EQ(types, (std::vector<std::string>{"8", "3", "9", "2"}));
}

TEST(Tables, LeaveEmptyWhatAnEclipseDoesNotHave) {
  const auto rows = Table({"eclipses", "2024", "2025"});
  EXPECT_EQ(rows[1][4].substr(0, 13), "2460409.26284");
  EXPECT_EQ(std::vector<std::string>(rows[1].begin() + 8, rows[1].end()),
            (std::vector<std::string>{"", "", "", ""}));
  EXPECT_NE(rows[2][10], "");
  EXPECT_EQ(rows[2][11], "");
}

TEST(Tables, LoseAndDoubleNothingAtTheTurnOfAYear) {
  for (const char* const command : {"phases", "eclipses", "dates"}) {
    const Rows both = Table({command, "3309", "3314"});
    Rows parts;
    for (const auto& [from, to] : {std::pair("3309", "3312"), std::pair("3312", "3314")}) {
      const Rows part = Table({command, from, to});
      parts.insert(parts.end(), part.begin(), part.end());
    }
    EXPECT_EQ(both, parts) << command;
  }
}

TEST(Tables, DatesAgreeWithTheReference) {
  int compared = 0;
  std::map<std::string, std::vector<std::string>> by_day;
  for (const auto& row : Table({"dates", "1890", "1910"})) by_day[row[0]] = row;
  EXPECT_EQ(by_day.size(), 20U * 365 + 4);
  for (const ReferenceRow& expected : ReadReferenceData("dates.csv")) {
    const auto found = by_day.find(expected.at("day_number"));
    if (found == by_day.end()) continue;
    ++compared;
    EXPECT_EQ(found->second,
              (std::vector<std::string>{expected.at("day_number"), expected.at("weekday"),
                                        expected.at("CE"), expected.at("JC"), expected.at("ARC"),
                                        expected.at("KSG")}));
  }
  EXPECT_GT(compared, 0);
}

TEST(Tables, RefuseWhatTheyCannotPrint) {
  const std::vector<std::vector<std::string_view>> bad = {
      {},
      {"phases", "2000"},
      {"moons", "2000", "2001"},
      {"phases", "2001", "2001"},
      {"phases", "-3201", "2001"},
      {"phases", "2001", "6002"},
      {"phases", "2001x", "2002"},
      {"phases", "99999999999", "2002"},
  };
  for (const auto& arguments : bad) {
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(RunTables(arguments, out, err, false), kBadArguments);
    EXPECT_EQ(out.str(), "");
    EXPECT_NE(err.str(), "");
  }
}

TEST(Tables, StopWhenTheOutputTakesNoMore) {
  std::ostringstream out;
  out.setstate(std::ios::badbit);
  std::ostringstream err;
  const std::vector<std::string_view> arguments{"dates", "-3200", "6001"};
  EXPECT_EQ(RunTables(arguments, out, err, false), kOutputClosed);
}

}  // namespace
}  // namespace tarnwick
