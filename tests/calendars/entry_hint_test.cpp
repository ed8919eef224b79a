#include "calendars/entry_hint.h"

#include <gtest/gtest.h>
#include <string>

#include "calendars/entry_parser.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLongestHint = 90;

std::string Refusal(const std::string& text, Calendar current = kCE) {
  const Entry entry = ParseEntry(text, {current});
  EXPECT_NE(entry.code, kEntryOk);
  std::string hint = RefusalHint(text, current, entry.code);
  EXPECT_LE(hint.size(), kLongestHint) << hint;
  return hint;
}

TEST(EntryHint, ExamplesNameOneMomentInEveryCalendar) {
  const double moment = ParseEntry("2018-07-27 CE 20:21", {}).ajd.days;
  for (const Calendar calendar : kCalendars) {
    const std::string hint = EntryHint(calendar);
    EXPECT_LE(hint.size(), kLongestHint) << hint;
    const Entry entry = ParseEntry(hint.substr(hint.find(": ") + 2), {});
    EXPECT_EQ(entry.calendar, calendar) << hint;
    EXPECT_NEAR(entry.ajd.days, moment, 0.0001) << hint;
  }
}

TEST(RefusalHint, NamesTheSlip) {
  const std::pair<const char*, const char*> slips[] = {
      {"2023-02-29 CE", "February 2023 has 28 days"},
      {"2023-02-0 CE", "Days are counted from 1"},
      {"2023-13-01 CE", "Months of the year go from 1 to 12: this one is 13"},
      {"31-12-2003 CE", "The year comes first: year-month-day"},
      {"0-02-40 CE", "February 0 has 29 days"},
      {"2003-12 CE", "CE dates are three numbers, year-month-day: this one has 2"},
      {"5-DEC-2003 CE", "CE dates are numbers joined by \"-\": year-month-day"},
      {"9999999-01-01 CE", "CE dates do not reach as far as that"},
      {"99999999999-01-01 CE", "CE dates do not reach as far as that"},
      {"44-03-15 BCE", "Years before 1 are 0, -1, -2 and so on: 44 BCE is the year -43"},
      {"44-03-15 BC", "Years before 1 are 0, -1, -2 and so on: 44 BCE is the year -43"},
      {"1900-02-30 JC", "February 1900 JC has 29 days"},
      {"4708-02-30 ARC", "Diana 4708 has 29 days"},
      {"4708-14-01 ARC", "ARC years have 12 or 13 months: this one has 12"},
      {"2147483647-01-01 ARC", "ARC dates do not reach as far as that"},
      {"33-46-13-01 SD", "SD years have 12 or 13 months: this one has 12"},
      {"33-61-01-01 SD", "Years of an SD cycle go from 1 to 60: this one is 61"},
      {"33-31-02-30 SD", "Bruno of the year 33-31 has 29 days"},
      {"46-9-11 SD", "SD dates are four numbers, cycle-year-month-day: this one has 3"},
      {"99999999-1-1-1 SD", "SD dates do not reach as far as that"},
      {"112-06-10-1 LLT", "Oraiel 112 has 9 tridays"},
      {"112-12-10-1 LLT", "Eleleth 112 has 9 tridays"},
      {"112-05-10-4 LLT", "A triday has 3 days"},
      {"1-385-1-1-1 LLT", "Years of an LLT cycle go from 1 to 384: this one is 385"},
      {"112-13-1-1 LLT", "Months of the year go from 1 to 12: this one is 13"},
      {"112-1-4 LLT",
       "LLT dates are four or five numbers, cycle-year-month-triday-day: this one has 3"},
      {"1-471-01-01 KSG", "Years of a KSG cycle go from 1 to 470: this one is 471"},
      {"1-10-13-30 KSG", "Maria of the year 10 has 29 days"},
      {"-105-13-11 KSG", "Years are counted from 1"},
      {"1-1 KSG", "KSG dates are three or four numbers, cycle-year-month-day: this one has 2"},
      {"5011-14-1-1 OLW", "OLW years have 12 or 13 months: this one has 12"},
      {"5011-03-5-1 OLW", "Weeks of the month go from 1 to 4: this one is 5"},
      {"5011-03-2-8 OLW", "Weektwo of Clark 5011 has 7 days"},
      {"13000-1-1-1 OLW", "OLW dates do not reach as far as that"},
      {"1E9 AJD", "A day count is one number: 2,458,327.3479 AJD"},
      {"2451545 CJD 12:00",
       "CJD and AJD take no time: it is the fraction of the day, .75 is 18 hours later"},
      {"2000.01.01 JC", "The numbers of a date are joined by \"-\", not by \".\": year-month-day"},
      {"2000-01-01 CE 15.55", "A time is HH:MM, with \":\" between"},
      {"2000-01-01 CE 1530", "A time is HH:MM, such as 20:21"},
      {"2000-01-01 CE 24:00", "A time is HH:MM, from 00:00 to 23:59"},
      {"2000-01-01 CE 1:30 PM", "A time is HH:MM in 24 hours, without AM and PM"},
      {"2000-01-01 CE 1:30 AM", "A time is HH:MM in 24 hours, without AM and PM"},
      {"2000-01-01 CE 1X:30", "A time is HH:MM, such as 20:21"},
      {"2000-01-01 CE 15:55:30", "A time is HH:MM, without seconds"},
      {"2000-01-01 CE 15:55+02:00", "A time is HH:MM alone: the zone is chosen from the list"},
      {"2000-01-01 CE (A) 15:55", "Nothing can follow a remark"},
      {"2000-01-01 15:55 CE", "The time comes last, after date and calendar: 2018-07-27 CE 20:21"},
      {"2000 -01-01",
       "Name the calendar after the date: CE, JC, ARC, SD, LLT, KSG, OLW, CJD or AJD"},
      {"2000-01-01 CE X", "After CE only a time can follow: 2018-07-27 CE 20:21"},
      {"2023 CE 2451545 AJD", "An entry names one calendar only: 2018-07-27 CE 20:21"},
      {"MAY 5", "An entry begins with a digit or \"-\": 2018-07-27 CE 20:21"},
  };
  for (const auto& [text, hint] : slips) EXPECT_EQ(Refusal(text), hint) << text;
}

TEST(RefusalHint, ReadsAnEntryWithoutCalendarInTheCurrentOne) {
  EXPECT_EQ(Refusal("2023-02-29", kJC), "February 2023 JC has 28 days");
  EXPECT_EQ(Refusal("1-105-13-11", kARC),
            "ARC dates are three numbers, year-month-day: this one has 4");
}

TEST(OutOfRangeHint, QuotesAShortEntry) {
  EXPECT_EQ(OutOfRangeHint("-5000-01-01 CE (SATURDAY)", false),
            "-5000-01-01 CE lies before -3200-01-01 CE");
  EXPECT_EQ(OutOfRangeHint(std::string(300, '9'), true),
            "This date lies after noon of 6000-01-01 CE");
}

}  // namespace
}  // namespace tarnwick
