#include "calendars/goddess.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "engines/checked_arithmetic.h"

namespace tarnwick {
namespace {

using testing::_;
using testing::FieldsAre;

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kEpoch = 2415611;
constexpr std::int32_t kCycleDays = 180432;

KSGDate DateOf(std::int32_t day_number) {
  KSGDate date;
  date.jdn = day_number;
  JDNToKSGDate(date);
  return date;
}

TEST(Goddess, BeginsItsCyclesAtTheEpoch) {
  EXPECT_THAT(DateOf(kEpoch), FieldsAre(1, 1, 1, 1, _, _));
  EXPECT_THAT(DateOf(kEpoch - 1), FieldsAre(0, 470, 13, 29, _, _));
  EXPECT_THAT(DateOf(kEpoch - kCycleDays - 1), FieldsAre(-1, 470, 13, 29, _, _));
}

// Conversions use sums in closed form; here they meet the lengths of years and months one by one,
// over a cycle before and one after the epoch.
TEST(Goddess, ConvertsAsTheLengthsOfYearsAndMonthsAddUp) {
  for (const std::int32_t cycle : {0, 1}) {
    std::int32_t day_number = kEpoch + (cycle - 1) * kCycleDays;
    int short_years = 0;
    for (std::int16_t year = 1; year <= 470; ++year) {
      const std::int32_t year_start = day_number;
      short_years += IsShortKSGYear(year) ? 1 : 0;
      for (std::int16_t month = 1; month <= 13; ++month) {
        KSGDate first{cycle, year, month, 1};
        ASSERT_TRUE(KSGDateToJDN(first)) << year << "-" << month;
        ASSERT_EQ(first.jdn, day_number) << year << "-" << month;
        ASSERT_THAT(DateOf(day_number), FieldsAre(cycle, year, month, 1, _, _));
        day_number += KSGMonthLength(year, month);
        ASSERT_THAT(DateOf(day_number - 1),
                    FieldsAre(cycle, year, month, KSGMonthLength(year, month), _, _));
      }
      ASSERT_EQ(day_number - year_start, KSGYearLength(year)) << year;
    }
    EXPECT_EQ(short_years, 48);
    EXPECT_EQ(day_number, kEpoch + cycle * kCycleDays);
  }
}

TEST(Goddess, AcceptsOnlyDatesThatExist) {
  struct Case {
    KSGDate date;
    bool exists;
  };
  const Case cases[] = {
      {{1, 105, 13, 30}, true},  {{1, 470, 13, 29}, true}, {{1, 470, 13, 30}, false},
      {{1, 235, 13, 30}, false}, {{1, 10, 13, 30}, false}, {{1, 9, 12, 30}, false},
      {{1, 10, 1, 30}, true},    {{1, 0, 1, 1}, false},    {{1, 471, 1, 1}, false},
      {{1, 1, 0, 1}, false},     {{1, 1, 14, 1}, false},   {{1, 1, 1, 0}, false},
      {{1, 1, 1, 31}, false},    {{-9, 1, -1, 1}, false},
  };
  for (Case c : cases) {
    SCOPED_TRACE(KSGDateString(c.date, 1, false));
    c.date.jdn = 77;
    c.date.valid = c.exists ? 0 : 1;
    EXPECT_EQ(KSGDateToJDN(c.date), c.exists);
    EXPECT_EQ(c.date.valid, c.exists ? 1 : 0);
    EXPECT_EQ(c.date.jdn == 0, !c.exists);
  }
}

TEST(Goddess, ThrowsWhereNumbersEnd) {
  for (const std::int32_t cycle : {kLowest, -20000, 20000, kHighest}) {
    KSGDate date{cycle, 1, 1, 1};
    EXPECT_THROW(KSGDateToJDN(date), RuntimeError) << cycle;
    EXPECT_THROW(KSGDateString(date, 2, true), RuntimeError) << cycle;
  }
  KSGDate last{kHighest, 470, 13, 1};
  EXPECT_THROW(StepKSGMonth(last, true), RuntimeError);
  EXPECT_THROW(StepKSGCycle(last, true), RuntimeError);
  KSGDate first{kLowest, 1, 1, 1};
  EXPECT_THROW(StepKSGYear(first, false), RuntimeError);
}

struct Step {
  KSGDate from;
  bool forward;
  std::string to;
};

void CheckSteps(const std::vector<Step>& steps, void (*step_date)(KSGDate&, bool)) {
  for (const Step& step : steps) {
    SCOPED_TRACE(KSGDateString(step.from, 1, false) + (step.forward ? " on" : " back"));
    KSGDate date = step.from;
    step_date(date, step.forward);
    EXPECT_EQ(KSGDateString(date, 1, false), step.to);
  }
}

TEST(Goddess, Steps) {
  CheckSteps({{{1, 9, 13, 30}, true, "1-10-13-29"},
              {{1, 236, 13, 30}, false, "1-235-13-29"},
              {{1, 9, 1, 30}, true, "1-10-01-30"},
              {{1, 470, 13, 29}, true, "2-1-13-29"},
              {{1, 1, 13, 30}, false, "0-470-13-29"}},
             StepKSGYear);
  CheckSteps({{{1, 105, 1, 30}, true, "1-105-02-29"},
              {{1, 105, 1, 29}, true, "1-105-02-29"},
              {{1, 105, 13, 30}, true, "1-106-01-30"},
              {{1, 106, 1, 30}, false, "1-105-13-30"},
              {{1, 1, 1, 30}, false, "0-470-13-29"},
              {{0, 470, 13, 29}, true, "1-1-01-29"}},
             StepKSGMonth);
  CheckSteps({{{0, 470, 13, 29}, true, "1-470-13-29"}, {{0, 1, 1, 1}, false, "-1-1-01-01"}},
             StepKSGCycle);
}

TEST(Goddess, ReadsTexts) {
  using std::string_view_literals::operator""sv;
  KSGDate date;
  ASSERT_TRUE(ParseKSGDate("-12-105-013-11", date));
  EXPECT_THAT(date, FieldsAre(-12, 105, 13, 11, 0, 0));
  ASSERT_TRUE(ParseKSGDate("1-1-1", date));
  EXPECT_THAT(date, FieldsAre(1, 1, 1, 1, 0, 0));
  ASSERT_TRUE(ParseKSGDate("2147483647-471-14-31", date));
  EXPECT_THAT(date, FieldsAre(kHighest, 471, 14, 31, 0, 0));

  for (const std::string_view text :
       {""sv, "-"sv, "1-1"sv, "-1-1-1"sv, "1-1-1-1-1"sv, "--1-1-1-1"sv, "1--1-1"sv, "1-1-1-"sv,
        "1-1-1.5"sv, " 1-1-1"sv, "+1-1-1-1"sv, "2147483648-1-1-1"sv, "1-32768-1-1"sv, "40000-1-1"sv,
        "1-1-1-99999999999999999999"sv, "1-1-1\0"sv}) {
    EXPECT_FALSE(ParseKSGDate(text, date)) << text;
  }
  EXPECT_EQ(date.year, 471) << "a failure must leave the record";
}

TEST(Goddess, WritesItsStyles) {
  const KSGDate date = DateOf(2455901);
  const std::string words = "The 11th day of Maria in the year 105 of cycle 1";
  EXPECT_EQ(KSGDateString(date, 1, true), "1-105-13-11 KSG");
  EXPECT_EQ(KSGDateString(date, 2, true), "1-105-13-11 KSG (Monday, Maria 11, 1-105)");
  EXPECT_EQ(KSGDateString(date, 2, false), "1-105-13-11 (Monday, Maria 11, 1-105)");
  EXPECT_EQ(KSGDateString(date, 3, true), words);
  EXPECT_EQ(KSGDateString(date, 5, true), words);
  EXPECT_EQ(KSGDateString(date, 4, true), "Month 13 (Maria) of Year 105 of Cycle 1");
  EXPECT_EQ(KSGDateString(date, 0, true), "");

  const KSGDate without_day_number{-3, 1, 1, 2};
  EXPECT_EQ(KSGDateString(without_day_number, 1, false), "-3-1-01-02");
  EXPECT_EQ(KSGDateString(without_day_number, 2, false), "-3-1-01-02 (Thursday, Athena 2, -3-1)");
  EXPECT_EQ(KSGDateString(without_day_number, 4, true), "Month 1 (Athena) of Year 1 of Cycle-3");
}

}  // namespace
}  // namespace tarnwick
