#include "calendars/entry_parser.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "calendars/calendar_table.h"
#include "calendars/date_texts.h"
#include "calendars/text.h"

namespace tarnwick {
namespace {

struct GoodEntry {
  const char* text;
  Calendar calendar;
  double cjd;
};

TEST(ParseEntry, ReadsTheMomentOfEveryForm) {
  const GoodEntry entries[] = {
      {"2000-01-01 CE", kCE, 2451545.5},
      {"2000-1-1 CE 0:00", kCE, 2451545.0},
      {"2000-01-01 CE 7:05", kCE, 2451545 + 425 / 1440.0},
      {"2000-01-01 CE 23:59", kCE, 2451545 + 1439 / 1440.0},
      {"2000-01-01 CE 10:75", kCE, 2451545 + 675 / 1440.0},
      {"2000-01-01 CE 10:5", kCE, 2451545 + 605 / 1440.0},
      {"2000-01-01 CE 15:55 (LOCAL = GMT+05:30)", kCE, 2451545 + 955 / 1440.0},
      {"2000-01-01 CE (LOCAL = GMT+05:30", kCE, 2451545.5},
      {"2000-01-01 CE (A) 15:55 (B) ", kCE, 2451545.5},
      {"1999-12-19 JC 12:00", kJC, 2451545.5},
      {"-3200-01-01 CE 0:00", kCE, 552284.0},
      {"4708-11-11 ARC", kARC, 2455901.5},
      {"33-31-09-11 SD", kSD, 2455901.5},
      {"-54-39-10-23 SD 18:00", kSD, 552283.75},
      {"112-1-4-3 LLT", kLLT, 2455901.5},
      {"-14-116-02-08-2 LLT (LOCAL=GMT)", kLLT, 552283.5},
      {"1-105-13-11 KSG", kKSG, 2455901.5},
      {"105-13-11 KSG", kKSG, 2455901.5},
      {"0-470-13-29 KSG 6:00", kKSG, 2415610.25},
      {"2,451,545.25 CJD", kCJD, 2451545.25},
      {"2451545 AJD (GREENWICH; LOCAL = GMT-03:30)", kAJD, 2451545.5},
      {"2000-01-01", kCE, 2451545.5},
  };
  for (const GoodEntry& expected : entries) {
    SCOPED_TRACE(expected.text);
    const Entry entry = ParseEntry(expected.text, {});
    EXPECT_EQ(entry.code, kEntryOk);
    EXPECT_EQ(entry.calendar, expected.calendar);
    EXPECT_NEAR(entry.ajd.days, expected.cjd - 0.5, 1e-9);
  }
}

TEST(ParseEntry, RefusesWithTheCodeOfTheFirstFault) {
  const std::pair<EntryCode, std::vector<const char*>> cases[] = {
      {kInvalidEntry, {"", ", ,", "HELLO", "+2000-01-01 CE", "(A) 2000-01-01 CE"}},
      {kCalendarMissing, {"2000 -01-01", "2000-01-01 CE X", "2000-01-01 CE -5", "2451545 CJD:"}},
      {kTimeNotPermitted, {"2451545 AJD 12:00", "2451545 AJD 12", "12:00 2451545 AJD"}},
      {kInvalidTime,
       {"2000-01-01 CE (A) 15:55", "2451545 AJD (A) 5", "2000-01-01 CE 24:00",
        "2000-01-01 CE 23:60", "2000-01-01 CE 0:-5", "2000-01-01 CE 10:", "2000-01-01 CE 3PM",
        "2000-01-01 CE 1530", "2000-01-01 CE 1:30 PM", "2000-01-01 CE 15:55:30",
        "2000-01-01 CE 15:55+02:00", "2000-01-01 CE 99915:55", "2000-01-01 CE 15:555",
        "2000-01-01 CE 15:55)"}},
      {kInvalidSeparator, {"2000.01.01 CE", "2000/01/01 CE"}},
      {kInvalidCE,
       {"2000-13-01 CE", "2001-02-29 CE", "2000-01 CE", "2023 CE 2451545 AJD",
        "99999999999-01-01 CE"}},
      {kInvalidJC, {"2001-02-29 JC"}},
      {kInvalidARC, {"4708-14-01 ARC", "2147483647-01-01 ARC"}},
      {kInvalidSD, {"33-46-13-01 SD", "99999999-1-1-1 SD"}},
      {kInvalidLLT, {"112-06-10-1 LLT", "99999999-1-1-1-1 LLT"}},
      {kInvalidKSG, {"1-471-01-01 KSG", "9999999-105-13-11 KSG"}},
      {kInvalidOLW, {"5011 OLW 2451545 AJD"}},
      {kInvalidDayCount, {"-1-2 CJD", "2-1 CJD", "1E9 AJD", "5 AJD 2451545 CJD"}},
      // no calendar is named before the time
      {kUnparsable, {"2000-01-01 15:55 CE", "2000-01-01 JC 12:00 CE", "12:00"}},
  };
  for (const auto& [code, texts] : cases) {
    for (const char* const text : texts) {
      const Entry entry = ParseEntry(text, {});
      EXPECT_EQ(entry.code, code) << text;
      EXPECT_EQ(entry.calendar, std::nullopt) << text;
    }
  }
}

TEST(ParseEntry, TakesTheCurrentCalendarWhereNoneIsNamed) {
  const Entry entry = ParseEntry("4708-11-11", {kARC, 0, false});
  EXPECT_EQ(entry.code, kEntryOk);
  EXPECT_EQ(entry.calendar, kARC);
  EXPECT_TRUE(entry.calendar_supplied);
  EXPECT_FALSE(ParseEntry("4708-11-11 ARC", {kARC, 0, false}).calendar_supplied);
}

TEST(ParseEntry, ReadsInTheGivenZoneExceptAstronomicalDates) {
  for (const int offset : {-720, 330, 720}) {
    SCOPED_TRACE(offset);
    const EntryContext context{kCE, offset, false};
    const double east = offset / 1440.0;
    EXPECT_DOUBLE_EQ(ParseEntry("2000-01-01 CE", context).ajd.days, 2451545.0 - east);
    EXPECT_DOUBLE_EQ(ParseEntry("2451545.5 CJD", context).ajd.days, 2451545.0 - east);
    EXPECT_EQ(ParseEntry("2451545 AJD", context).ajd.days, 2451545.0);
  }
}

// The captions hold "December", in which CE stands, "Tuesday" with SD, zones and commas.
TEST(ParseEntry, ReadsEveryLongFormBack) {
  constexpr double kFirst = 552284.25;
  constexpr double kLast = 3912514;
  constexpr double kStep = 9973.21;  // so that every day of week, month and year comes
  for (const int offset : {-720, -210, 0, 330, 720}) {
    for (double ajd = kFirst; ajd < kLast; ajd += kStep) {
      for (const Calendar calendar : kCalendars) {
        const std::string shown = DateTextsOf(calendar, UniversalTime(ajd), offset).long_form;
        const Entry entry = ParseEntry(UpperCase(shown), {kCE, offset, false});
        ASSERT_EQ(entry.code, kEntryOk) << shown;
        EXPECT_EQ(entry.calendar, calendar) << shown;
        EXPECT_EQ(DateTextsOf(calendar, entry.ajd, offset).long_form, shown);
      }
    }
  }
}

TEST(ParseEntry, RecalledDayCountsMayCarryATime) {
  const Entry entry = ParseEntry("2,451,545.0000 AJD 15:55 (LOCAL = GMT+05:30)", {kCE, 0, true});
  EXPECT_EQ(entry.code, kEntryOk);
  EXPECT_EQ(entry.ajd, UniversalTime(2451545.0));
}

// Whatever is typed, the answer is a code or a number that the range check can judge.
TEST(ParseEntry, SurvivesAnyText) {
  const std::string digits(100000, '9');
  const std::string texts[] = {
      digits,
      digits + " AJD",
      "-" + digits + " CJD",
      digits + "-1-1 CE",
      "1-" + digits + "-1 ARC",
      "1-1-1 KSG " + digits + ":" + digits,
      "1" + std::string(100000, '-') + " CE",
      std::string("2000-01-01\0 CE", 14),
      "1\xff\xfe\xc3 CE",
      "1-1-1 CE 1\xe2\x82:\xac",
      "0." + std::string(100000, '0') + "1 AJD",
      "1CE",
      "-",
      "-CJD",
      "1:CE:CE:CE",
  };
  for (const std::string& text : texts) {
    SCOPED_TRACE(text.substr(0, 20));
    const Entry entry = ParseEntry(text, {kKSG, 720, false});
    EXPECT_FALSE(std::isnan(entry.ajd.days));
    EXPECT_EQ(entry.code == kEntryOk, entry.calendar.has_value());
  }
  EXPECT_EQ(ParseEntry(digits + " AJD", {}).ajd.days, std::numeric_limits<double>::infinity());
}

TEST(EntryErrorText, KnowsEveryCodeAndNoOther) {
  for (std::int16_t code = kInvalidEntry; code <= kNoDateGiven; ++code) {
    EXPECT_NE(EntryErrorText(code), "Unknown error.") << code;
  }
  EXPECT_EQ(EntryErrorText(0), "Unknown error.");
  EXPECT_EQ(EntryErrorText(20), "Unknown error.");
}

}  // namespace
}  // namespace tarnwick
