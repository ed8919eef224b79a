#include "calendars/archetypes.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "engines/checked_arithmetic.h"

namespace tarnwick {
namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kCycleYears = 1803;
constexpr std::int32_t kCycleDays = 658532;

TEST(Archetypes, SpreadsLeapAndLongYearsOverTheCycle) {
  int leap_years = 0;
  int long_years = 0;
  int days = 0;
  for (std::int32_t k = 1; k <= kCycleYears; ++k) {
    leap_years += IsARCLeapYear(k + 442) ? 1 : 0;
    long_years += IsARCLongYear(k + 442) ? 1 : 0;
    days += ARCYearLengthAt(k);
  }
  EXPECT_EQ(leap_years, 664);
  EXPECT_EQ(long_years, 350);
  EXPECT_EQ(days, kCycleDays);
}

TEST(Archetypes, AcceptsOnlyDatesThatExist) {
  struct Case {
    ARCDate date;
    bool exists;
  };
  const Case cases[] = {
      {{4708, 11, 30}, true},  {{4708, 12, 29}, true},
      {{4708, 12, 30}, false}, {{4701, 13, 30}, true},
      {{4702, 13, 1}, false},  {{4704, 10, 30}, true},
      {{4705, 10, 30}, false}, {{4704, 8, 30}, false},
      {{4708, 0, 1}, false},   {{4708, 14, 1}, false},
      {{4708, 1, 0}, false},   {{4708, 1, 31}, false},
      {{4708, 1, -1}, false},  {{4708, kHighest, kLowest}, false},
  };
  for (Case c : cases) {
    SCOPED_TRACE(ARCDateString(c.date, 1));
    c.date.jdn = 77;
    c.date.valid = c.exists ? 0 : 1;
    EXPECT_EQ(ARCDateToJDN(c.date), c.exists);
    EXPECT_EQ(c.date.valid, c.exists ? 1 : 0);
    EXPECT_EQ(c.date.jdn == 0, !c.exists);
  }
  EXPECT_EQ(ARCMonthLength(4709, 14), -1);
  EXPECT_EQ(ARCMonthLength(4709, 0), -1);
}

TEST(Archetypes, ThrowsWhereNumbersEnd) {
  for (const std::int32_t year : {kHighest, kHighest - 1, 6'000'000, -6'000'000, kLowest}) {
    ARCDate date{year, 1, 1};
    EXPECT_THROW(ARCDateToJDN(date), RuntimeError) << year;
  }
  ARCDate last{kHighest, 12, 1};
  EXPECT_THROW(StepARCYear(last, true), RuntimeError);
  ARCDate last_month{kHighest, 13, 1};
  EXPECT_THROW(StepARCMonth(last_month, true), RuntimeError);
  ARCDate first{kLowest, 1, 1};
  EXPECT_THROW(StepARCMonth(first, false), RuntimeError);
}

// The steps apply the rules to the year before the one that the conversions look at: they leave a
// month that the conversion accepts, and arrive at one that it rejects.
TEST(Archetypes, StepsByTheRulesOfTheYearBefore) {
  struct Step {
    ARCDate from;
    void (*step)(ARCDate& record, bool forward);
    bool forward;
    const char* to;
  };
  for (const Step& step : {Step{{4701, 12, 5}, StepARCMonth, true, "4702-01-05 ARC"},
                           {{4702, 12, 5}, StepARCMonth, true, "4702-13-05 ARC"},
                           {{4703, 1, 30}, StepARCMonth, false, "4702-13-30 ARC"},
                           {{4702, 13, 30}, StepARCYear, true, "4703-12-29 ARC"},
                           {{4703, 13, 30}, StepARCYear, false, "4702-13-30 ARC"},
                           {{4704, 10, 30}, StepARCYear, true, "4705-10-30 ARC"},
                           {{4705, 11, 30}, StepARCMonth, true, "4705-12-29 ARC"},
                           {{4706, 10, 30}, StepARCYear, true, "4707-10-29 ARC"}}) {
    ARCDate date = step.from;
    step.step(date, step.forward);
    EXPECT_EQ(ARCDateString(date, 1), step.to);
  }
  ARCDate rejected{4702, 13, 5};
  EXPECT_FALSE(ARCDateToJDN(rejected));
}

TEST(Archetypes, WritesItsStyles) {
  const ARCDate date{4708, 11, 11};
  EXPECT_EQ(ARCDateString(date, 1), "4708-11-11 ARC");
  EXPECT_EQ(ARCDateString(date, 2), "4708-11-11 ARC (Sun Day, Dionysus 11,  4708)");
  EXPECT_EQ(ARCDateString(date, 3), "Dionysus 11,  4708");
  EXPECT_EQ(ARCDateString(date, 4), "The 11th day of Dionysus in the year 4708");
  EXPECT_EQ(ARCDateString(date, 5), "Sun Day, Dionysus 11,  4708");
  EXPECT_EQ(ARCDateString(date, 0), "");
  EXPECT_EQ(ARCDateString(date, 6), "");
  EXPECT_EQ(ARCDateString({-5, 1, 2}, 2), "-5-01-02 ARC (Mercury Day, Apollo 2, -5)");
  EXPECT_EQ(ARCDateString({-5, 13, 30}, 4), "The 30th day of Persephone in the year-5");
  EXPECT_EQ(ARCDayName(30), "Pluto Day");
  EXPECT_EQ(ARCMonthName(14), "");
}

}  // namespace
}  // namespace tarnwick
