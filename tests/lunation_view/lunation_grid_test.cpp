#include "lunation_view/lunation_grid.h"

#include <cmath>
#include <gtest/gtest.h>
#include <set>

#include "calendars/date_processing.h"
#include "lunation_view/month_calendar.h"
#include "moon/syzyg.h"
#include "tests/reference_data.h"

namespace tarnwick {
namespace {

constexpr int kOffset = 330;  // minutes east of Greenwich
constexpr double kNearMidnight = 3.0 / 86400;

TEST(LunationGridTest, HoldsTheDaysOfItsLunation) {
  std::set<std::int32_t> lengths;
  for (std::int32_t lunation = kFirstLunation; lunation <= kLastLunation; lunation += 37) {
    const GridReading reading{lunation % 4 < 0 ? lunation % 4 + 4 : lunation % 4, kOffset};
    const LunationGrid grid = MakeLunationGrid(lunation, reading);
    SCOPED_TRACE(grid.title);
    lengths.insert(grid.days.length);
    DayNumber next = grid.days.first_day;
    for (int i = 0; i < kGridCells; ++i) {
      const auto& cell = grid.cells[static_cast<std::size_t>(i)];
      const bool shown = i != 7 && i != 23 && (i != 31 || grid.days.length == 30);
      ASSERT_EQ(cell.has_value(), shown) << i;
      if (!cell) continue;
      ASSERT_EQ(cell->day_number, next);
      next = next + 1;
      ASSERT_FALSE(cell->date.empty());
    }
    ASSERT_EQ(next, grid.days.first_day + grid.days.length);
    ASSERT_EQ(LunationOfDay(NoonOf(grid.days.first_day, kOffset), reading), lunation);
    ASSERT_EQ(LunationOfDay(NoonOf(next - 1, kOffset) + 0.49, reading), lunation);
  }
  EXPECT_EQ(lengths, (std::set<std::int32_t>{29, 30}));
}

TEST(LunationGridTest, OpensWithinTheBounds) {
  EXPECT_EQ(LunationOfDay(UniversalTime(552283.0 - 1000), {}), kFirstLunation);
  EXPECT_EQ(LunationOfDay(UniversalTime(3912515.0 + 1000), {}), kLastLunation);
}

// How many cells of the grid of the instant's day name the event; the cell of the day must.
int CountNaming(TerrestrialTime tt, const std::string& name) {
  const GridReading reading{0, kOffset};
  const UniversalTime ut = ToUniversalTime(tt);
  const double cjd = AJDToCJD(ut, kOffset).days;
  const LunationGrid grid = MakeLunationGrid(LunationOfDay(ut, reading), reading);
  int count = 0;
  for (const auto& cell : grid.cells) {
    const bool named = cell && cell->event.find(name) != std::string::npos;
    count += named ? 1 : 0;
    const bool near_midnight = std::fabs(cjd - std::round(cjd)) < kNearMidnight;
    if (!cell || near_midnight || cell->day_number.value != std::floor(cjd)) continue;
    EXPECT_TRUE(named) << name << ' ' << cell->date;
    EXPECT_NE(cell->tool_tip.find("\n" + name), std::string::npos) << cell->tool_tip;
  }
  return count;
}

TEST(LunationGridTest, NamesPhasesAndEclipsesOnTheirDays) {
  const auto phases = ReadReferenceData("phases.csv");
  for (std::size_t i = 1; i + 1 < phases.size(); ++i) {
    for (const auto& [column, name] :
         {std::pair("new", "Dark moon"), std::pair("first_quarter", "1st quarter"),
          std::pair("full", "Full moon"), std::pair("last_quarter", "Last quarter")}) {
      EXPECT_EQ(CountNaming(TerrestrialTime(std::stod(phases[i].at(column))), name), 1) << name;
    }
  }
  for (const char* const file : {"eclipses_lunar.csv", "eclipses_solar.csv"}) {
    for (const ReferenceRow& row : ReadReferenceData(file)) {
      const auto type = static_cast<std::int16_t>(std::stoi(row.at("type")));
      // Two eclipses of the Sun can stand at the two ends of a lunation.
      const TerrestrialTime greatest(std::stod(row.at("greatest_tt")));
      EXPECT_GE(CountNaming(greatest, std::string(EclipseTypeText(type))), 1);
    }
  }
}

TEST(LunationGridTest, TellsHowSureOldTimesAre) {
  for (const auto& [lunation, ending] :
       {std::pair(-64316, " +- 34 min"), std::pair(-37105, " +- 11 min"), std::pair(332, "")}) {
    for (const auto& cell : MakeLunationGrid(lunation, {0, kOffset}).cells) {
      if (!cell || cell->event.empty()) continue;
      EXPECT_TRUE(cell->tool_tip.ends_with(ending)) << cell->tool_tip;
      EXPECT_EQ(cell->tool_tip.find("+-") == std::string::npos, lunation == 332);
    }
  }
}

TEST(LunationGridTest, IsTitledByTheMonthOfMostOfItsDays) {
  struct Case {
    std::int32_t lunation;
    int calendar;
    const char* title;
    const char* year_and_month;
    const char* first_date;
  };
  for (const Case& c :
       {Case{332, 0, "Lunation 332 (Sophia 4723)", "4723 - Orpheus-Sophia", "30 Orpheus"},
        Case{298, 0, "Lunation 298 (Apollo 4721)", "4720-4721 - Persephone-Apollo",
             "30 Persephone"},
        Case{49, 1, "Lunation 49 (Julius 33-23)", "33-23 - Julius", "1 Julius"},
        Case{49, 2, "Lunation 49 (Freya 1-98)", "1-98 - Epona-Freya", "30 Epona"},
        Case{49, 3, "Lunation 49 (Amethes 103)", "103 - Mousanios-Amethes", "10-3 Mousanios"},
        Case{-1200, 3, "Lunation -1200 (Mousanios -1-383)", "-1-383 - Mousanios", "1-1 Mousanios"},
        Case{49, 4, "Lunation 49 (Undefined calendar)", "", ""}}) {
    const LunationGrid grid = MakeLunationGrid(c.lunation, {c.calendar, 0});
    EXPECT_EQ(grid.title, c.title);
    EXPECT_EQ(grid.year_and_month, c.year_and_month);
    EXPECT_EQ(grid.cells[0]->date, c.first_date);
  }
}

// A fifth calendar in the list would be OLW, whose days begin six hours after midnight.
TEST(LunationGridTest, FifthCalendarBeginsItsDaysAtSix) {
  int earlier = 0;
  for (std::int32_t lunation = 0; lunation < 60; ++lunation) {
    const double cjd = AJDToCJD(PhaseTime(lunation, 0), 0).days;
    const bool before_six = cjd - std::floor(cjd) < 0.25;
    earlier += before_six ? 1 : 0;
    EXPECT_EQ(DaysOfLunation(lunation, {4, 0}).first_day,
              DaysOfLunation(lunation, {3, 0}).first_day - (before_six ? 1 : 0));
  }
  EXPECT_GT(earlier, 5);
}

}  // namespace
}  // namespace tarnwick
