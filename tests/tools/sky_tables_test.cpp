#include "tools/tables/sky_tables.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "engines/date_engine.h"
#include "tests/sky/reference_row.h"
#include "tests/tools/printed_table.h"

namespace tarnwick {
namespace {

// The table of the year before, of and after an instant at the place of a row.
std::vector<ReferenceRow> TableOfYears(const std::string& command, const ReferenceRow& row,
                                       const std::string& ut) {
  const auto day = static_cast<std::int32_t>(std::lround(NumberIn(row, ut)));
  const std::int32_t year = CivilDateOf(day).year;
  const std::string from = std::to_string(year - 1);
  const std::string to = std::to_string(year + 2);
  return Table({command, row.at("lat"), row.at("lon"), from, to});
}

bool IsInRange(const ReferenceRow& row, const std::string& ut) {
  return NumberIn(row, ut) > 552700 && NumberIn(row, ut) < 3912000;
}

// Every tenth row of a reference table, at an instant that the tables reach.
std::vector<ReferenceRow> SomeOf(const std::string& file, const std::string& ut) {
  std::vector<ReferenceRow> some;
  int i = 0;
  for (const ReferenceRow& row : ReadReferenceData(file)) {
    if (++i % 10 == 0 && IsInRange(row, ut)) some.push_back(row);
  }
  EXPECT_GE(some.size(), 3U) << file;
  return some;
}

// The row that has these cells.
std::optional<ReferenceRow> Find(const std::vector<ReferenceRow>& table,
                                 const ReferenceRow& cells) {
  for (const ReferenceRow& row : table) {
    const auto has = [&](const auto& cell) { return row.at(cell.first) == cell.second; };
    if (std::ranges::all_of(cells, has)) return row;
  }
  return std::nullopt;
}

// How exact the routines are is tested elsewhere.
void ExpectInstant(const ReferenceRow& found, const std::string& column, const ReferenceRow& row,
                   const std::string& expected, double seconds = 3) {
  EXPECT_NEAR(NumberIn(found, column), NumberIn(row, expected), seconds / kSecondsPerDay) << column;
}

TEST(SkyTables, HoldSolarEclipsesAsThePlaceSeesThem) {
  int seen = 0;
  for (const ReferenceRow& row : SomeOf("sky/solar_local.csv", "ut_max")) {
    const auto found = Find(TableOfYears("local", row, "ut_max"), {{"lunation", row.at("n")}});
    const bool high = row.at("kind") != "none" && NumberIn(row, "alt_max") > 0;
    if (!high) continue;
    ASSERT_TRUE(found) << row.at("place") << row.at("n");
    ++seen;
    EXPECT_EQ(found->at("seen"), row.at("kind"));
    ExpectInstant(*found, "maximum", row, "ut_max");
    EXPECT_NEAR(NumberIn(*found, "altitude"), NumberIn(row, "alt_max"), 0.005);
    EXPECT_NEAR(NumberIn(*found, "magnitude"), NumberIn(row, "magnitude"), 0.0004);
    EXPECT_NEAR(NumberIn(*found, "obscuration"), NumberIn(row, "obscuration"), 0.0004);
    EXPECT_NEAR(NumberIn(*found, "delta_t"), NumberIn(row, "delta_t"), 0.06);
    EXPECT_EQ(found->at("p1"), "");
    const bool begins = !row.at("alt_c1").empty() && NumberIn(row, "alt_c1") > 0;
    if (begins && NumberIn(row, "rate_c1") > 0.3) ExpectInstant(*found, "c1", row, "ut_c1");
  }
  EXPECT_GT(seen, 1);
}

TEST(SkyTables, HoldLunarEclipsesAsThePlaceSeesThem) {
  for (const ReferenceRow& row : SomeOf("sky/lunar_local.csv", "ut_greatest")) {
    const auto found = Find(TableOfYears("local", row, "ut_greatest"),
                            {{"lunation", row.at("n")}, {"phase", "2"}});
    if (NumberIn(row, "alt_greatest") < 0) continue;
    ASSERT_TRUE(found) << row.at("place") << row.at("n");
    EXPECT_EQ(found->at("type"), row.at("type"));
    ExpectInstant(*found, "maximum", row, "ut_greatest");
    EXPECT_NEAR(NumberIn(*found, "azimuth"), NumberIn(row, "az_greatest"), 0.02);
    EXPECT_EQ(found->at("obscuration") + found->at("c1"), "");
    if (NumberIn(row, "alt_p1") > 0) ExpectInstant(*found, "p1", row, "ut_p1");
  }
}

TEST(SkyTables, HoldCrescents) {
  for (const char* const file : {"sky/crescent.csv", "sky/crescent_morning.csv"}) {
    for (const ReferenceRow& row : SomeOf(file, "ut_conjunction")) {
      const bool evening = row.contains("evening");
      const auto found =
          Find(TableOfYears("crescents", row, "ut_conjunction"),
               {{"lunation", row.at("n")}, {"evening", row.at(evening ? "evening" : "morning")}});
      ASSERT_TRUE(found) << row.at("place") << row.at("n");
      EXPECT_EQ(found->at("class"), row.at("class"));
      EXPECT_EQ(found->at("q").empty(), row.at("q").empty());
      if (row.at("q").empty()) continue;
      EXPECT_NEAR(NumberIn(*found, "q"), NumberIn(row, "q"), 0.0006);
      EXPECT_NEAR(NumberIn(*found, "arcv"), NumberIn(row, "arcv"), 0.003);
      ExpectInstant(*found, "sunset", row, evening ? "ut_sunset" : "ut_sunrise");
    }
  }
}

// Whatever is next after an instant stands in the table, in the row of some day.
TEST(SkyTables, HoldRisingsAndSettings) {
  for (const ReferenceRow& row : SomeOf("sky/rise_set.csv", "ut_start")) {
    const std::vector<ReferenceRow> table = TableOfYears("sun_moon", row, "ut_start");
    for (const char* const column : {"sunrise", "sunset", "sun_transit", "moonrise", "moonset"}) {
      const std::string expected = row.at(std::string("ut_") + column);
      if (expected.empty()) continue;
      double nearest = 1;
      for (const ReferenceRow& day : table) {
        if (day.at(column).empty()) continue;
        nearest = std::fmin(nearest, std::fabs(NumberIn(day, column) - std::stod(expected)));
      }
      EXPECT_LT(nearest * kSecondsPerDay, 5) << row.at("place") << " " << column;
    }
  }
}

TEST(SkyTables, HoldThePathOfAnEclipse) {
  for (const ReferenceRow& row : SomeOf("sky/solar_path.csv", "ut_greatest")) {
    const std::vector<ReferenceRow> path = Table({"path", row.at("n")});
    ExpectInstant(path.front(), "ut", row, "ut_begin", 8);
    ExpectInstant(path.back(), "ut", row, "ut_end", 8);
    double minutes = 0;
    for (const ReferenceRow& at : path) {
      if (std::fabs(NumberIn(at, "ut") - NumberIn(row, "ut_greatest")) > 2.0 / kSecondsPerDay) {
        ++minutes;
        continue;
      }
      EXPECT_EQ(at.at("kind"), row.at("kind"));
      EXPECT_NEAR(NumberIn(at, "latitude"), NumberIn(row, "lat"), 0.02);
      EXPECT_NEAR(NumberIn(at, "duration_s"), NumberIn(row, "duration_s"), 0.2);
    }
    const double expected = (NumberIn(row, "ut_end") - NumberIn(row, "ut_begin")) * 24 * 60;
    EXPECT_NEAR(minutes, expected + 2, 1.5);
  }
}

}  // namespace
}  // namespace tarnwick
