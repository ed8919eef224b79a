#include "calendars/triday.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "engines/checked_arithmetic.h"

namespace tarnwick {
namespace {

using testing::FieldsAre;

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kEpoch = 2416557;
constexpr std::int32_t kCycleDays = 136077;

// Conversions use divisions in closed form; here they meet the lengths of months one by one, over a
// cycle before and one after the epoch.
TEST(Triday, ConvertsAsTheLengthsOfMonthsAddUp) {
  for (const std::int32_t cycle : {-1, 0}) {
    std::int32_t day_number = kEpoch + cycle * kCycleDays;
    int long_years = 0;
    for (std::int32_t year = 1; year <= 384; ++year) {
      const bool is_long = 47 * year % 384 < 47;
      long_years += is_long ? 1 : 0;
      ASSERT_EQ(num_tridays_in_12th_month(year), is_long ? 10 : 9) << year;
      for (std::int32_t month = 1; month <= 12; ++month) {
        const std::int32_t tridays = month == 6 || (month == 12 && !is_long) ? 9 : 10;
        LLTDate first{cycle, year, month, 1, 1};
        ASSERT_TRUE(LLTToJDN(first)) << year << "-" << month;
        ASSERT_EQ(first.jdn, day_number) << year << "-" << month;
        day_number += 3 * tridays;
        LLTDate last{0, 0, 0, 0, 0, 77, day_number - 1};
        JDNToLLT(last);
        ASSERT_THAT(last, FieldsAre(cycle, year, month, tridays, 3, 77, day_number - 1));
        ASSERT_FALSE(LLTValid({cycle, year, month, tridays + 1, 1})) << year << "-" << month;
      }
    }
    EXPECT_EQ(long_years, 47);
    EXPECT_EQ(day_number, kEpoch + (cycle + 1) * kCycleDays);
  }
}

TEST(Triday, AcceptsOnlyDatesThatExist) {
  const LLTDate existing[] = {
      {0, 1, 1, 10, 3}, {0, 9, 12, 10, 1}, {-15000, 1, 1, 1, 1}, {15000, 384, 1, 1, 1}};
  for (LLTDate date : existing) {
    EXPECT_TRUE(LLTToJDN(date)) << LLTDateString(date, 1);
  }
  const LLTDate missing[] = {{0, 0, 1, 1, 1},
                             {0, 385, 1, 1, 1},
                             {0, 1, 0, 1, 1},
                             {0, 1, 13, 1, 1},
                             {0, 1, 1, 0, 1},
                             {0, 1, 1, 1, 0},
                             {0, 1, 1, 1, 4},
                             {0, 1, 6, 10, 1},
                             {0, 8, 12, 10, 1},
                             {-16000, 1, 1, 1, 1},
                             {16000, 1, 1, 1, 1},
                             {kLowest, 1, 1, 1, 1},
                             {kHighest, kHighest, kHighest, kHighest, kHighest}};
  for (LLTDate date : missing) {
    SCOPED_TRACE(LLTDateString(date, 1));
    date.jdn = 77;
    EXPECT_FALSE(LLTValid(date));
    EXPECT_FALSE(LLTToJDN(date));
    EXPECT_EQ(date.jdn, 77);
  }
}

TEST(Triday, ThrowsWhereNumbersEnd) {
  for (const auto step : {StepLLTYear, StepLLTMonth}) {
    LLTDate last{kHighest, 384, 12, 1, 1};
    EXPECT_THROW(step(last, true), RuntimeError);
    LLTDate first{kLowest, 1, 1, 1, 1};
    EXPECT_THROW(step(first, false), RuntimeError);
  }
  LLTDate far_month{0, 1, kHighest, 1, 1};
  EXPECT_THROW(StepLLTMonth(far_month, true), RuntimeError);
}

TEST(Triday, ReadsTexts) {
  LLTDate date;
  ASSERT_TRUE(ParseLLTDate("-14-116-02-08-2", date));
  EXPECT_THAT(date, FieldsAre(-14, 116, 2, 8, 2, 0, 552283));
  ASSERT_TRUE(ParseLLTDate("10-382-6-9-3", date));
  EXPECT_THAT(date, FieldsAre(10, 382, 6, 9, 3, 0, 3912515));
  ASSERT_TRUE(ParseLLTDate("1-1-1-1", date));
  EXPECT_THAT(date, FieldsAre(0, 1, 1, 1, 1, 0, kEpoch));

  for (const char* const text :
       {"", "---", "1-2", "1-1-1", "-1-1-1-1", "1-1-1-1-", "1-1-1-1-1-1", "1-1-1-1.5", "99-6-10-1",
        "9999999999-1-1-1-1", "4294967297-1-1-1", "2147483647-1-1-1-1"}) {
    EXPECT_FALSE(ParseLLTDate(text, date)) << text;
  }
  EXPECT_EQ(date.jdn, kEpoch) << "a failure must leave the record";
}

TEST(Triday, WritesItsStyles) {
  const LLTDate date{2, 99, 4, 6, 1};
  const std::string words = "Sophiesday in the 6th triday of Phaionios in the year 99, Cycle 2";
  EXPECT_EQ(LLTDateString(date, 1), "2-099-04-06-1 LLT");
  EXPECT_EQ(LLTDateString(date, 2), "2-099-04-06-1 LLT (Sophiesday 6 Phaionios 99)");
  EXPECT_EQ(LLTDateString(date, 3), words);
  EXPECT_EQ(LLTDateString(date, 9), words);
  EXPECT_EQ(LLTDateString(date, 0), "");
  EXPECT_EQ(LLTDateString({0, 384, 12, 1, 3}, 2), "384-12-01-3 LLT (Norasday 1 Eleleth 384)");
  EXPECT_EQ(LLTDateString({0, 384, 12, 1, 3}, 3),
            "Norasday in the 1st triday of Eleleth in the year 384");
  EXPECT_EQ(LLTDateString({-3, 7, 1, 2, 2}, 1), "-3-007-01-02-2 LLT");
  EXPECT_EQ(LLTDateString({-3, 7, 1, 2, 2}, 3),
            "Zoesday in the 2nd triday of Armedon in the year 7, Cycle -3");
  EXPECT_EQ(LLTShortMonthName(7), "Mellephan.");
  EXPECT_EQ(LLTShortMonthName(8), "Loios");
  for (const std::int32_t none : {kLowest, 0, 13}) {
    EXPECT_EQ(LLTDayName(none), "") << none;
    EXPECT_EQ(LLTMonthName(none), "") << none;
  }
}

}  // namespace
}  // namespace tarnwick
