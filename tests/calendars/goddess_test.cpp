#include "calendars/goddess.h"

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
  EXPECT_EQ(KSGYearLength(234), 384);
  EXPECT_EQ(KSGYearLength(235), 383);
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

TEST(Goddess, ReadsTexts) {
  KSGDate date;
  ASSERT_TRUE(ParseKSGDate("-12-105-013-11", date));
  EXPECT_THAT(date, FieldsAre(-12, 105, 13, 11, 0, 0));
  ASSERT_TRUE(ParseKSGDate("1-1-1", date));
  EXPECT_THAT(date, FieldsAre(1, 1, 1, 1, 0, 0));
  ASSERT_TRUE(ParseKSGDate("2147483647-471-14-31", date));
  EXPECT_THAT(date, FieldsAre(kHighest, 471, 14, 31, 0, 0));

  for (const char* const text :
       {"", "-", "1-1", "-1-1-1", "1-1-1-1-1", "1-1-1-", "1-1-1.5", "2147483648-1-1-1",
        "1-32768-1-1", "40000-1-1", "1-1-1-99999999999999999999"}) {
    EXPECT_FALSE(ParseKSGDate(text, date)) << text;
  }
  EXPECT_EQ(date.year, 471) << "a failure must leave the record";
}

TEST(Goddess, WritesItsStyles) {
  const KSGDate date{1, 105, 13, 11};
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
