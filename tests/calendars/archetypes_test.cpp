#include "calendars/archetypes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "engines/checked_arithmetic.h"

namespace tarnwick {
namespace {

using testing::_;
using testing::FieldsAre;

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kCycleYears = 1803;
constexpr std::int32_t kCycleDays = 658532;

ARCDate DateOf(std::int32_t day_number) {
  ARCDate date;
  date.jdn = day_number;
  JDNToARCDate(date);
  return date;
}

TEST(Archetypes, BeginsItsCyclesAtTheEpoch) {
  EXPECT_THAT(DateOf(897474), FieldsAre(442, 1, 1, _, 897474, _));
  EXPECT_THAT(DateOf(897473), FieldsAre(441, 12, 29, _, 897473, _));
  EXPECT_EQ(ARCCyclePosition(443), 1);
  EXPECT_EQ(ARCCyclePosition(2245), 1803);
  EXPECT_EQ(ARCCyclePosition(442), 1803);
  EXPECT_EQ(ARCCyclePosition(-1360 - 1803), 1);
  EXPECT_EQ(ARCCycleOf(2245), 0);
  EXPECT_EQ(ARCCycleOf(2246), 1);
  EXPECT_EQ(ARCCycleOf(442), -1);
  EXPECT_EQ(ARCCycleOf(443 - 1803), -1);
  EXPECT_EQ(ARCCycleOf(442 - 1803), -2);
}

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

// Conversions use sums in closed form; here they meet the lengths of years and months one by one,
// over the three cycles around the epoch.
TEST(Archetypes, ConvertsAsTheLengthsOfYearsAndMonthsAddUp) {
  std::int32_t day_number = 897474 - kCycleDays;
  for (std::int32_t year = 442 - kCycleYears; year < 442 + 2 * kCycleYears; ++year) {
    const std::int32_t year_start = day_number;
    for (std::int32_t month = 1; ARCMonthLength(year + 1, month) > 0; ++month) {
      ARCDate first{year, month, 1};
      ASSERT_TRUE(ARCDateToJDN(first)) << year << "-" << month;
      ASSERT_EQ(first.jdn, day_number) << year << "-" << month;
      ASSERT_THAT(DateOf(day_number), FieldsAre(year, month, 1, _, _, _));
      day_number += ARCMonthLength(year + 1, month);
      ASSERT_THAT(DateOf(day_number - 1),
                  FieldsAre(year, month, ARCMonthLength(year + 1, month), _, _, _));
    }
    ASSERT_EQ(day_number - year_start, ARCYearLength(year + 1)) << year;
  }
}

TEST(Archetypes, RepeatsItsCyclesWithoutEnd) {
  const ARCDate date = DateOf(2455901);
  for (const std::int32_t cycles : {-3260, -2000, -4, 4, 2000, 3257}) {
    EXPECT_THAT(DateOf(2455901 + cycles * kCycleDays),
                FieldsAre(date.year + cycles * kCycleYears, date.month, date.day, _, _, _));
  }
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

struct Step {
  ARCDate from;
  bool forward;
  ARCDate to;
};

void CheckSteps(const std::vector<Step>& steps, void (*step_date)(ARCDate&, bool)) {
  for (const Step& step : steps) {
    SCOPED_TRACE(ARCDateString(step.from, 1) + (step.forward ? " on" : " back"));
    ARCDate date = step.from;
    step_date(date, step.forward);
    EXPECT_EQ(ARCDateString(date, 1), ARCDateString(step.to, 1));
  }
}

TEST(Archetypes, StepsByMonths) {
  CheckSteps({{{4708, 11, 30}, true, {4708, 12, 29}},
              {{4708, 12, 29}, true, {4709, 1, 29}},
              {{4702, 12, 5}, true, {4702, 13, 5}},
              {{4702, 13, 30}, true, {4703, 1, 30}},
              {{4703, 1, 30}, false, {4702, 13, 30}},
              {{4709, 1, 30}, false, {4708, 12, 29}},
              {{4708, 3, 30}, false, {4708, 2, 29}},
              {{4705, 9, 30}, true, {4705, 10, 30}},
              {{4704, 9, 30}, true, {4704, 10, 29}}},
             StepARCMonth);
}

TEST(Archetypes, StepsByYears) {
  CheckSteps({{{4702, 13, 30}, true, {4703, 12, 29}},
              {{4703, 13, 30}, false, {4702, 13, 30}},
              {{4704, 10, 30}, true, {4705, 10, 30}},
              {{4706, 10, 30}, true, {4707, 10, 29}}},
             StepARCYear);
}

// The steps apply the rules to the year before the one that the conversions look at.
TEST(Archetypes, StepsIntoAMonthThatTheConversionRejects) {
  ARCDate date{4702, 12, 5};
  StepARCMonth(date, true);
  EXPECT_FALSE(ARCDateToJDN(date));
  ARCDate skipped{4701, 12, 5};
  StepARCMonth(skipped, true);
  EXPECT_EQ(ARCDateString(skipped, 1), "4702-01-05 ARC");
}

TEST(Archetypes, WritesItsStyles) {
  const ARCDate date = DateOf(2455901);
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
