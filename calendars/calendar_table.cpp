#include "calendars/calendar_table.h"

#include <algorithm>
#include <cstddef>

#include "calendars/date_processing.h"
#include "calendars/day_date.h"
#include "calendars/text.h"

namespace tarnwick {
namespace {

std::string EuroShortForm(const DateRecord& date, Calendar calendar) {
  return DateText(date) + " " + std::string(AbbreviationOf(calendar));
}

DateTexts EuroTexts(DayNumber day_number, char letter, Calendar calendar) {
  const DateRecord date = CivilDateOf(day_number.value, letter);
  const std::string short_form = EuroShortForm(date, calendar);
  return {short_form,
          short_form + " (" + WeekdayName(euro_day_of_week(day_number.value)) + ", " +
              std::string(MonthName(date.month)) + " " + std::to_string(date.day) + ", " +
              YearText(date.year) + ")",
          DayOfYearText(date)};
}

std::string CEShortForm(DayNumber day_number) {
  return EuroShortForm(CivilDateOf(day_number.value, 'G'), kCE);
}
std::string JCShortForm(DayNumber day_number) {
  return EuroShortForm(CivilDateOf(day_number.value, 'J'), kJC);
}
DateTexts CETexts(DayNumber day_number) { return EuroTexts(day_number, 'G', kCE); }
DateTexts JCTexts(DayNumber day_number) { return EuroTexts(day_number, 'J', kJC); }

std::string ARCShortForm(DayNumber day_number) {
  return ARCDateString(DateOfDay<ARCDate>(day_number), 1);
}
std::string SDShortForm(DayNumber day_number) {
  return SDDateString(DateOfDay<SDDate>(day_number), 1);
}
std::string LLTShortForm(DayNumber day_number) {
  return LLTDateString(DateOfDay<LLTDate>(day_number), 1);
}
std::string KSGShortForm(DayNumber day_number) {
  return KSGDateString(DateOfDay<KSGDate>(day_number), 1, true);
}
std::string OLWShortForm(DayNumber day_number) {
  return OLWDateString(DateOfDay<OLWDate>(day_number), 1);
}

DateTexts ARCTexts(DayNumber day_number) {
  const ARCDate date = DateOfDay<ARCDate>(day_number);
  return {ARCDateString(date, 1), ARCDateString(date, 2), ARCDateString(date, 4)};
}

DateTexts SDTexts(DayNumber day_number) {
  const SDDate date = DateOfDay<SDDate>(day_number);
  return {SDDateString(date, 1), SDDateString(date, 2), SDDateString(date, 4)};
}

DateTexts LLTTexts(DayNumber day_number) {
  const LLTDate date = DateOfDay<LLTDate>(day_number);
  return {LLTDateString(date, 1), LLTDateString(date, 2), LLTDateString(date, 3)};
}

DateTexts KSGTexts(DayNumber day_number) {
  const KSGDate date = DateOfDay<KSGDate>(day_number);
  return {KSGDateString(date, 1, true), KSGDateString(date, 2, true), KSGDateString(date, 3, true)};
}

DateTexts OLWTexts(DayNumber day_number) {
  const OLWDate date = DateOfDay<OLWDate>(day_number);
  const std::string short_form = OLWDateString(date, 1);
  return {short_form, short_form + " (" + OLWDateString(date, 2) + ")", ""};
}

ReadDay ReadEuroDay(std::string_view date, char letter, EntryCode failure) {
  DateRecord record;
  record.calendar = letter;
  if (ParseDateString(date, record) != kDateParsed) return {failure, {}};
  return {kEntryOk, DayNumber(euro_date_to_jdn(record))};
}

ReadDay ReadCEDay(std::string_view date) { return ReadEuroDay(date, 'G', kInvalidCE); }
ReadDay ReadJCDay(std::string_view date) { return ReadEuroDay(date, 'J', kInvalidJC); }

ReadDay ReadARCDay(std::string_view date) {
  DateRecord record;
  record.calendar = 'R';
  if (ParseDateString(date, record) != kDateParsed) return {kInvalidARC, {}};
  ARCDate arc{record.year, record.month, record.day};
  if (!ARCDateToJDN(arc)) return {kInvalidARC, {}};
  return {kEntryOk, DayNumber(arc.jdn)};
}

// For a calendar whose own module reads its texts.
template <typename Record>
ReadDay ReadOwnDay(std::string_view date, bool (*parse)(std::string_view, Record&),
                   bool (*to_jdn)(Record&), EntryCode failure) {
  Record record;
  if (!parse(date, record) || !to_jdn(record)) return {failure, {}};
  return {kEntryOk, DayNumber(record.jdn)};
}

ReadDay ReadSDDay(std::string_view date) {
  return ReadOwnDay(date, ParseSDDate, SDDateToJDN, kInvalidSD);
}
ReadDay ReadLLTDay(std::string_view date) {
  return ReadOwnDay(date, ParseLLTDate, LLTToJDN, kInvalidLLT);
}
ReadDay ReadKSGDay(std::string_view date) {
  return ReadOwnDay(date, ParseKSGDate, KSGDateToJDN, kInvalidKSG);
}

ReadDay ReadOLWDay(std::string_view date) {
  OLWDate olw;
  switch (ParseOLWDate(date, olw)) {
    case kOLWValid:
      return {kEntryOk, DayNumber(olw.jdn)};
    case kOLWBadMonth:
      return {kInvalidOLWMonth, {}};
    case kOLWBadWeek:
      return {kInvalidOLWWeek, {}};
    case kOLWBadDay:
      return {kInvalidOLWDay, {}};
    default:
      return {kInvalidOLW, {}};
  }
}

constexpr std::array<CalendarRow, kCalendarCount> kRows{{
    {"CE", "Common Era date", "Common Era date",
     "Common Era: the Gregorian calendar, also before 1582; the year before 1 is 0", 0, kInvalidCE,
     CEShortForm, CETexts, ReadCEDay},
    {"JC", "Julian date", "Julian date",
     "Julian calendar: every fourth year is a leap year; the year before 1 is 0", 0, kInvalidJC,
     JCShortForm, JCTexts, ReadJCDay},
    {"ARC", "Archetypes Calendar date", "Archetypes Calendar date",
     "Archetypes Calendar: 12 or 13 months of 30 and 29 days a year, by a rule over 1803 years", 0,
     kInvalidARC, ARCShortForm, ARCTexts, ReadARCDay},
    {"SD", "Sarvik-Dolmer Solilunar Calendar date", "Sarvik-Dolmer Solilunar Calendar date",
     "Sarvik-Dolmer Solilunar Calendar: 12 or 13 months from the new moon nearest the March "
     "equinox",
     0, kInvalidSD, SDShortForm, SDTexts, ReadSDDay},
    {"LLT", "Lunar Liberalia Triday Calendar date", "Lunar Liberalia Triday Calendar date",
     "Lunar Liberalia Triday Calendar: 12 lunar months a year, each divided into tridays of three "
     "days",
     0, kInvalidLLT, LLTShortForm, LLTTexts, ReadLLTDay},
    {"KSG", "Kestrin-Sarvik Goddess Calendar date", "Kestrin-Sarvik Goddess Calendar date",
     "Kestrin-Sarvik Goddess Calendar: 13 months of 30 and 29 days a year, in cycles of 470 years",
     0, kInvalidKSG, KSGShortForm, KSGTexts, ReadKSGDay},
    {"CJD", "chronological Julian date", "Chronological Julian date",
     "Chronological Julian date: days counted from midnight in the chosen zone; 2000-01-01 CE is "
     "day 2,451,545",
     0, kInvalidDayCount, nullptr, nullptr, nullptr},
    {"AJD", "astronomical Julian date", "Astronomical Julian date",
     "Astronomical Julian date: days counted from noon at Greenwich; noon of 2000-01-01 CE is "
     "2,451,545",
     0, kInvalidDayCount, nullptr, nullptr, nullptr},
    {"OLW", "Ostrel Lunar Week Calendar", "Ostrel Lunar Week Calendar date",
     "Ostrel Lunar Week Calendar: months by the true Moon, weeks that end with its phases, days "
     "from 6 hours",
     kOLWDayShift, kInvalidOLW, OLWShortForm, OLWTexts, ReadOLWDay},
}};

}  // namespace

const CalendarRow& RowOf(Calendar calendar) { return kRows[static_cast<std::size_t>(calendar)]; }

std::optional<Calendar> CalendarIndex(std::string_view abbreviation) {
  const auto found = std::find_if(kCalendars.begin(), kCalendars.end(), [&](Calendar calendar) {
    return AbbreviationOf(calendar) == abbreviation;
  });
  return found == kCalendars.end() ? std::nullopt : std::optional(*found);
}

}  // namespace tarnwick
