#include "calendars/entry_hint.h"

#include <array>
#include <cstddef>

#include "calendars/date_hint.h"
#include "calendars/entry_parts.h"
#include "calendars/text.h"

namespace tarnwick {
namespace {

// The greatest phase of a total lunar eclipse, whatever the calendar.
constexpr std::array<std::string_view, kCalendarCount> kExamples{
    "2018-07-27 CE 20:21",  "2018-07-14 JC 20:21",   "4715-06-15 ARC 20:21",
    "33-38-05-15 SD 20:21", "118-11-05-2 LLT 20:21", "1-112-04-15 KSG 20:21",
    "2,458,327.8479 CJD",   "2,458,327.3479 AJD",    "5018-05-2-8 OLW 14:21"};

std::string Example(Calendar calendar) {
  return std::string(kExamples[static_cast<std::size_t>(calendar)]);
}

bool NamesSeveralCalendars(std::string_view entry) {
  int named = 0;
  for (const Calendar calendar : kCalendars) {
    if (Contains(entry, AbbreviationOf(calendar))) ++named;
  }
  return named > 1;
}

// "44 BCE" holds the abbreviation of the Common Era; "44 BC" none at all.
bool CountsBackwards(std::string_view date) { return date.ends_with('B') || Contains(date, "BC"); }

std::string TimeFault(std::string_view time) {
  if (time.ends_with("AM") || time.ends_with("PM")) {
    return "A time is HH:MM in 24 hours, without AM and PM";
  }
  if (time.find_first_of("+-Z") != std::string_view::npos) {
    return "A time is HH:MM alone: the zone is chosen from the list";
  }
  if (CountOf(time, ":") > 1) return "A time is HH:MM, without seconds";
  const bool too_late = Contains(time, ":") && LeadingNumber(time) >= 23;
  return too_late ? "A time is HH:MM, from 00:00 to 23:59" : "A time is HH:MM, such as 20:21";
}

std::string SeparatorFault(const EntryParts& parts, Calendar calendar) {
  const std::string_view wrong = "./";
  const std::size_t found = parts.date.find_first_of(wrong);
  if (found == std::string_view::npos) return "A time is HH:MM, with \":\" between";
  return "The numbers of a date are joined by \"-\", not by \"" +
         std::string(1, parts.date[found]) + "\": " + std::string(DateForm(calendar));
}

std::string CalendarFault(bool named, Calendar calendar) {
  if (!named) return "Name the calendar after the date: CE, JC, ARC, SD, LLT, KSG, OLW, CJD or AJD";
  return "After " + std::string(AbbreviationOf(calendar)) +
         " only a time can follow: " + Example(calendar);
}

constexpr char kBackwards[] = "Years before 1 are 0, -1, -2 and so on: 44 BCE is the year -43";

}  // namespace

std::string EntryHint(Calendar calendar) {
  if (IsDayCount(calendar))
    return "A date in any of the nine, or a day count: " + Example(calendar);
  return "A date in any of the nine, a time if you like: " + Example(calendar);
}

std::string RefusalHint(std::string_view text, Calendar current, std::int16_t code) {
  const std::string whole = RemoveChars(text, ", ");
  std::string entry(BeforeRemark(whole));
  const auto named = FindCalendar(entry, Sought::kAny);
  const Calendar calendar = named.value_or(current);
  if (!named) entry += AbbreviationOf(calendar);
  const EntryParts parts = SplitAt(entry, calendar);

  if (code == kNoDateGiven) return EntryHint(current);
  if (code == kInvalidPlusMinus) return "Days to add or subtract are a number: 7, -7 or 1,000.5";
  if (code == kInvalidEntry) return "An entry begins with a digit or \"-\": " + Example(calendar);
  if (code == kInvalidTime && GoesOnAfterRemark(whole)) return "Nothing can follow a remark";
  if (CountsBackwards(parts.date)) return kBackwards;
  if (NamesSeveralCalendars(entry)) return "An entry names one calendar only: " + Example(calendar);
  switch (code) {
    case kCalendarMissing:
      return CalendarFault(named.has_value(), calendar);
    case kTimeNotPermitted:
      return "CJD and AJD take no time: it is the fraction of the day, .75 is 18 hours later";
    case kInvalidTime:
      return TimeFault(parts.time);
    case kInvalidSeparator:
      return SeparatorFault(parts, calendar);
    case kInvalidDayCount:
      return "A day count is one number: " + Example(calendar);
    case kUnparsable:
      return "The time comes last, after date and calendar: " + Example(calendar);
    default:
      return DateFault(calendar, parts.date);
  }
}

std::string OutOfRangeHint(std::string_view text, bool late) {
  constexpr std::size_t kLongest = 40;
  const std::string_view entry = Trim(BeforeRemark(text));
  return std::string(entry.size() > kLongest ? "This date" : entry) +
         (late ? " lies after noon of 6000-01-01 CE" : " lies before -3200-01-01 CE");
}

}  // namespace tarnwick
