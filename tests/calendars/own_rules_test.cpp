// The calendars with rules of their own: ARC, SD, LLT and KSG.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "calendars/archetypes.h"
#include "calendars/calendar_table.h"
#include "calendars/goddess.h"
#include "calendars/solilunar.h"
#include "calendars/triday.h"
#include "engines/checked_arithmetic.h"

namespace tarnwick {
namespace {

using testing::FieldsAre;

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

// The ARC year 4702 has no month 13, and 4704 has the long month 10. The SD year 33-46 has months
// up to 12/29, 33-47 up to 13/30, 33-48 up to 12/30, 33-58 up to 13/29. In LLT month 6 has nine
// tridays, and month 12 ten in the years 9 and 384.
TEST(OwnRules, OnlyDatesThatExistAreRead) {
  const std::pair<Calendar, std::vector<std::string>> dates[] = {
      {kARC, {"4708-11-30", "4708-12-29", "4701-13-30", "4704-10-30"}},
      {kSD, {"33-46-12-29", "33-47-13-30", "33-48-12-30", "33-58-13-29"}},
      {kSD, {"-97900-1-1-1", "97900-1-1-1", "0-1-0001-01"}},
      {kLLT, {"1-1-10-3", "9-12-10-1", "-15000-1-1-1-1", "15000-384-1-1-1", "10-382-6-9-3"}},
      {kKSG, {"1-105-13-30", "1-470-13-29", "10-1-30", "-12-105-013-11"}},
  };
  const std::pair<Calendar, std::vector<std::string>> no_dates[] = {
      {kARC, {"4708-12-30", "4702-13-1", "4705-10-30", "4704-8-30", "4708-0-1", "4708-14-1"}},
      {kARC, {"4708-1-0", "4708-1-31"}},
      {kSD, {"33-46-13-1", "33-46-12-30", "33-47-12-30", "33-47-14-1", "33-48-12-31"}},
      {kSD, {"33-58-13-30", "33-46-1-31", "33-0-1-1", "33-61-1-1", "33-46-0-1", "33-46-1-0"}},
      {kSD, {"-98100-1-1-1", "98100-1-1-1", "2147483647-1-1-1", "33-2147483648-1-1"}},
      {kSD, {"", "-", "46-1-1", "-46-1-1", "33-46-1-1-1", "33-46-1-1-", "33-46-1-1.5"}},
      {kLLT, {"0-1-1-1", "385-1-1-1", "1-0-1-1", "1-13-1-1", "1-1-0-1", "1-1-1-0", "1-1-1-4"}},
      {kLLT, {"1-6-10-1", "8-12-10-1", "-16000-1-1-1-1", "16000-1-1-1-1", "2147483647-1-1-1-1"}},
      {kLLT, {"4294967297-1-1-1", "9999999999-1-1-1-1", "", "---", "1-2", "1-1-1", "-1-1-1-1"}},
      {kLLT, {"1-1-1-1-", "1-1-1-1-1-1", "1-1-1-1.5"}},
      {kKSG, {"1-470-13-30", "1-235-13-30", "10-13-30", "9-12-30", "1-0-1-1", "1-471-1-1"}},
      {kKSG, {"1-1-0-1", "1-1-14-1", "1-1-1-0", "1-1-1-31", "2147483648-1-1-1", "65537-1-1"}},
      {kKSG, {"1-65537-1-1", "1-1-1-65537", "", "-", "1-1", "-1-1-1", "1-1-1-1-1", "1-1-1-"}},
  };
  for (const auto& [calendar, texts] : dates) {
    for (const auto& text : texts) EXPECT_EQ(RowOf(calendar).read(text).code, kEntryOk) << text;
  }
  for (const auto& [calendar, texts] : no_dates) {
    const CalendarRow& row = RowOf(calendar);
    for (const auto& text : texts) EXPECT_EQ(row.read(text).code, row.failure) << text;
  }
  KSGDate goddess;
  EXPECT_FALSE(ParseKSGDate("-1-1-1", goddess));
}

template <class Date>
void ExpectMarked(bool (*convert)(Date&), Date no_date) {
  no_date.jdn = 77;
  no_date.valid = 1;
  EXPECT_FALSE(convert(no_date));
  EXPECT_EQ(no_date.jdn, 0);
  EXPECT_EQ(no_date.valid, 0);
}

TEST(OwnRules, RecordsOfNoDateAreMarkedAndTridaysLeft) {
  ExpectMarked<ARCDate>(ARCDateToJDN, {4708, 1, 0});
  ExpectMarked<SDDate>(SDDateToJDN, {33, 46, 13, 1});
  ExpectMarked<KSGDate>(KSGDateToJDN, {1, 470, 13, 30});
  LLTDate triday{0, 1, 6, 10, 1};
  triday.jdn = 77;
  EXPECT_FALSE(LLTToJDN(triday));
  EXPECT_EQ(triday.jdn, 77);
}

// Conversions use divisions in closed form; here they meet the lengths of months one by one, over a
// cycle before and one after the epoch.
TEST(OwnRules, TridaysAreConvertedAsTheLengthsOfMonthsAddUp) {
  for (const std::int32_t cycle : {-1, 0}) {
    std::int32_t day_number = 2416557 + cycle * 136077;
    for (std::int32_t year = 1; year <= 384; ++year) {
      const bool is_long = 47 * year % 384 < 47;
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
    EXPECT_EQ(day_number, 2416557 + (cycle + 1) * 136077);
  }
}

// The steps apply the rules to the year before the one that the conversions look at: they leave a
// month that the conversion accepts, and arrive at one that it rejects.
TEST(OwnRules, ArchetypesStepByTheYearBefore) {
  const struct {
    ARCDate from;
    void (*step)(ARCDate& record, bool forward);
    bool forward;
    const char* to;
  } steps[] = {{{4701, 12, 5}, StepARCMonth, true, "4702-01-05 ARC"},
               {{4702, 12, 5}, StepARCMonth, true, "4702-13-05 ARC"},
               {{4703, 1, 30}, StepARCMonth, false, "4702-13-30 ARC"},
               {{4702, 13, 30}, StepARCYear, true, "4703-12-29 ARC"},
               {{4703, 13, 30}, StepARCYear, false, "4702-13-30 ARC"},
               {{4704, 10, 30}, StepARCYear, true, "4705-10-30 ARC"},
               {{4705, 11, 30}, StepARCMonth, true, "4705-12-29 ARC"},
               {{4706, 10, 30}, StepARCYear, true, "4707-10-29 ARC"}};
  for (const auto& [from, step, forward, to] : steps) {
    ARCDate date = from;
    step(date, forward);
    EXPECT_EQ(ARCDateString(date, 1), to);
  }
}

template <class Date>
void ExpectThrow(void (*step)(Date&, bool), bool forward, Date date) {
  EXPECT_THROW(step(date, forward), RuntimeError) << testing::PrintToString(date);
}

TEST(OwnRules, NumbersThatEndAreErrors) {
  ExpectThrow(StepARCYear, true, {kHighest, 12, 1});
  ExpectThrow(StepARCMonth, true, {kHighest, 13, 1});
  ExpectThrow(StepARCMonth, false, {kLowest, 1, 1});
  for (const auto step : {StepSDYear, StepSDMonth}) {
    ExpectThrow(step, true, {kHighest, 60, 13, 1});
    ExpectThrow(step, false, {kLowest, 1, 1, 1});
  }
  ExpectThrow(StepSDMonth, false, {1, 1, kLowest, 1});
  for (const auto step : {StepLLTYear, StepLLTMonth}) {
    ExpectThrow(step, true, {kHighest, 384, 12, 1, 1});
    ExpectThrow(step, false, {kLowest, 1, 1, 1, 1});
  }
  ExpectThrow(StepLLTMonth, true, {0, 1, kHighest, 1, 1});
  ExpectThrow(StepKSGMonth, true, {kHighest, 470, 13, 1});
  ExpectThrow(StepKSGCycle, true, {kHighest, 470, 13, 1});
  ExpectThrow(StepKSGYear, false, {kLowest, 1, 1, 1});
  for (const std::int32_t number : {kLowest, -6'000'000, 6'000'000, kHighest - 1, kHighest}) {
    ARCDate date{number, 1, 1};
    EXPECT_THROW(ARCDateToJDN(date), RuntimeError) << number;
    KSGDate goddess{number, 1, 1, 1};
    EXPECT_THROW(KSGDateToJDN(goddess), RuntimeError) << number;
  }
  std::int16_t months = 0;
  EXPECT_THROW(SDMonthLength({kHighest / 60 + 1, 1, 1, 1}, months), RuntimeError);
  EXPECT_THROW(SDMonthLength({kHighest / 60, 60, 1, 1}, months), RuntimeError);
}

TEST(OwnRules, DatesAreWrittenInTheirStyles) {
  const std::pair<std::string, std::string> texts[] = {
      {ARCDateString({4708, 11, 11}, 2), "4708-11-11 ARC (Sun Day, Dionysus 11,  4708)"},
      {ARCDateString({4708, 11, 11}, 3), "Dionysus 11,  4708"},
      {ARCDateString({4708, 11, 11}, 5), "Sun Day, Dionysus 11,  4708"},
      {ARCDateString({4708, 11, 11}, 6), ""},
      {ARCDateString({4708, 11, 11}, 4), "The 11th day of Dionysus in the year 4708"},
      {ARCDateString({-5, 1, 2}, 2), "-5-01-02 ARC (Mercury Day, Apollo 2, -5)"},
      {ARCDateString({-5, 13, 30}, 4), "The 30th day of Persephone in the year-5"},
      {std::string(ARCDayName(30)), "Pluto Day"},
      {SDDateString({3, 7, 2, 5}, 2), "3-07-02-05 SD (Bruno 5, 3-7)"},
      {SDDateString({3, 7, 2, 5}, 3), "5 Bruno in the year 7, cycle 3"},
      {SDDateString({0, 60, 13, 12}, 4), "The 12th day of Meton in the year 60"},
      {SDDateString({-2, 1, 1, 22}, 2), "-2-01-01-22 SD (Aristarchus 22, -2-1)"},
      {SDDateString({-2, 1, 1, 22}, 4), "The 22nd day of Aristarchus in the year 1, cycle -2"},
      {LLTDateString({2, 99, 4, 6, 1}, 2), "2-099-04-06-1 LLT (Sophiesday 6 Phaionios 99)"},
      {LLTDateString({2, 99, 4, 6, 1}, 3),
       "Sophiesday in the 6th triday of Phaionios in the year 99, Cycle 2"},
      {LLTDateString({0, 384, 12, 1, 3}, 2), "384-12-01-3 LLT (Norasday 1 Eleleth 384)"},
      {LLTDateString({-3, 7, 1, 2, 2}, 3),
       "Zoesday in the 2nd triday of Armedon in the year 7, Cycle -3"},
      {std::string(LLTShortMonthName(7)), "Mellephan."},
      {KSGDateString({1, 105, 13, 11}, 2, true), "1-105-13-11 KSG (Monday, Maria 11, 1-105)"},
      {KSGDateString({1, 105, 13, 11}, 3, true),
       "The 11th day of Maria in the year 105 of cycle 1"},
      {KSGDateString({1, 105, 13, 11}, 4, true), "Month 13 (Maria) of Year 105 of Cycle 1"},
      {KSGDateString({-3, 1, 1, 2}, 2, false), "-3-1-01-02 (Thursday, Athena 2, -3-1)"},
  };
  for (const auto& [text, expected] : texts) EXPECT_EQ(text, expected);
  for (const std::int32_t none : {kLowest, 0, 14}) {
    EXPECT_EQ(ARCMonthName(none), "");
    EXPECT_EQ(SDMonthName(none), "");
    EXPECT_EQ(LLTDayName(none), "");
    EXPECT_EQ(LLTMonthName(none), "");
  }
}

}  // namespace
}  // namespace tarnwick
