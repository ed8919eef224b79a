#include "calendars/solilunar.h"

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
constexpr std::int32_t kEpoch = 1721495;

TEST(Solilunar, FillsTheRecordOfADayNumber) {
  SDDate last{0, 0, 0, 0, 66, 0, 77, kEpoch - 1};
  EXPECT_EQ(JDNToSDDate(last), 29);
  EXPECT_THAT(last, FieldsAre(-1, 60, 12, 29, 66, 12, 77, kEpoch - 1));
  std::int16_t months = 0;
  EXPECT_EQ(SDMonthLength({33, 47, 13, 1}, months), 30);
  EXPECT_EQ(months, 13);
}

// The year 33-46 has months up to 12/29, 33-47 up to 13/30, 33-48 up to 12/30, 33-58 up to 13/29.
TEST(Solilunar, AcceptsOnlyDatesThatExist) {
  const SDDate existing[] = {{33, 46, 12, 29}, {33, 47, 13, 30},  {33, 48, 12, 30},
                             {33, 58, 13, 29}, {-97900, 1, 1, 1}, {97900, 1, 1, 1}};
  for (SDDate date : existing) {
    EXPECT_TRUE(SDDateToJDN(date)) << SDDateString(date, 1);
    EXPECT_EQ(date.valid, 1);
  }
  const SDDate missing[] = {{33, 46, 13, 1},    {33, 46, 12, 30},
                            {33, 47, 12, 30},   {33, 47, 14, 1},
                            {33, 48, 12, 31},   {33, 58, 13, 30},
                            {33, 46, 1, 31},    {33, 0, 1, 1},
                            {33, 61, 1, 1},     {33, 46, 0, 1},
                            {33, 46, 1, 0},     {33, 46, -1, -1},
                            {-98100, 1, 1, 1},  {98100, 1, 1, 1},
                            {kLowest, 1, 1, 1}, {kHighest, kHighest, kHighest, kHighest}};
  for (SDDate date : missing) {
    SCOPED_TRACE(SDDateString(date, 1));
    date.valid = 1;
    date.jdn = 77;
    EXPECT_FALSE(SDDateToJDN(date));
    EXPECT_EQ(date.valid, 0);
    EXPECT_EQ(date.jdn, 0);
    EXPECT_EQ(date.extra, SDMonthsInYear(date.year, date.cycle));
  }
  std::int16_t months = 0;
  EXPECT_EQ(SDMonthLength({33, 46, 13, 1}, months), 0);
  EXPECT_EQ(SDMonthLength({33, 46, 0, 1}, months), 0);
}

TEST(Solilunar, ThrowsWhereNumbersEnd) {
  for (const auto step : {StepSDYear, StepSDMonth}) {
    SDDate last{kHighest, 60, 13, 1};
    EXPECT_THROW(step(last, true), RuntimeError);
    SDDate first{kLowest, 1, 1, 1};
    EXPECT_THROW(step(first, false), RuntimeError);
  }
  SDDate far_month{1, 1, kLowest, 1};
  EXPECT_THROW(StepSDMonth(far_month, false), RuntimeError);
  std::int16_t months = 0;
  EXPECT_THROW(SDMonthLength({kHighest / 60 + 1, 1, 1, 1}, months), RuntimeError);
  EXPECT_THROW(SDMonthLength({kHighest / 60, 60, 1, 1}, months), RuntimeError);
}

TEST(Solilunar, ReadsTexts) {
  SDDate date;
  ASSERT_TRUE(ParseSDDate("-54-39-10-23", date));
  EXPECT_THAT(date, FieldsAre(-54, 39, 10, 23, 1, 12, 0, 552283));
  ASSERT_TRUE(ParseSDDate("0-1-0001-01", date));
  EXPECT_THAT(date, FieldsAre(0, 1, 1, 1, 1, 13, 0, kEpoch));

  for (const char* const text :
       {"", "-", "46-1-1", "-46-1-1", "33-46-1-1-1", "33-46-1-1-", "33-46-1-1.5", "33-46-13-1",
        "33-46-2-30", "9999999999-1-1-1", "33-2147483648-1-1", "2147483647-1-1-1"}) {
    EXPECT_FALSE(ParseSDDate(text, date)) << text;
  }
  EXPECT_EQ(date.jdn, kEpoch) << "a failure must leave the record";
}

TEST(Solilunar, WritesItsStyles) {
  const SDDate date{3, 7, 2, 5};
  EXPECT_EQ(SDDateString(date, 1), "3-07-02-05 SD");
  EXPECT_EQ(SDDateString(date, 2), "3-07-02-05 SD (Bruno 5, 3-7)");
  EXPECT_EQ(SDDateString(date, 3), "5 Bruno in the year 7, cycle 3");
  for (const std::int32_t style : {-1, 0, 4, 5}) {
    EXPECT_EQ(SDDateString(date, style), "The 5th day of Bruno in the year 7, cycle 3") << style;
  }
  EXPECT_EQ(SDDateString({0, 60, 13, 12}, 3), "12 Meton in the year 60");
  EXPECT_EQ(SDDateString({0, 60, 13, 12}, 4), "The 12th day of Meton in the year 60");
  EXPECT_EQ(SDDateString({-2, 1, 1, 22}, 2), "-2-01-01-22 SD (Aristarchus 22, -2-1)");
  EXPECT_EQ(SDDateString({-2, 1, 1, 22}, 4), "The 22nd day of Aristarchus in the year 1, cycle -2");
  EXPECT_EQ(SDMonthName(0), "");
  EXPECT_EQ(SDMonthName(14), "");
}

}  // namespace
}  // namespace tarnwick
