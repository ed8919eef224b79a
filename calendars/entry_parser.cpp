#include "calendars/entry_parser.h"

#include <cctype>
#include <optional>

#include "calendars/date_processing.h"
#include "calendars/text.h"
#include "engines/checked_arithmetic.h"
#include "engines/time_units.h"

namespace tarnwick {
namespace {

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

enum class Sought { kAny, kWithDates };

// The first calendar whose abbreviation occurs anywhere in the text.
std::optional<Calendar> FindCalendar(std::string_view text, Sought sought) {
  for (const Calendar calendar : kCalendars) {
    if (sought == Sought::kWithDates && IsDayCount(calendar)) continue;
    if (Contains(text, AbbreviationOf(calendar))) return calendar;
  }
  return std::nullopt;
}

// What stands before the abbreviation.
std::string_view BeforeAbbreviation(std::string_view text, Calendar calendar) {
  return text.substr(0, text.find(AbbreviationOf(calendar)));
}

// After the abbreviation come the time, a remark in parentheses, or nothing.
bool IsFollowedProperly(std::string_view text, std::string_view abbreviation) {
  const std::size_t next = text.find(abbreviation) + abbreviation.size();
  return next == text.size() || IsDigit(text[next]) || text[next] == '(';
}

bool HasDayCount(std::string_view text) {
  return Contains(text, AbbreviationOf(kCJD)) || Contains(text, AbbreviationOf(kAJD));
}

std::int16_t CheckSeparators(std::string_view text) {
  if (HasDayCount(text)) return CountOf(text, "-") > 1 ? kInvalidDayCount : kEntryOk;
  return text.find_first_of("./") == std::string_view::npos ? kEntryOk : kInvalidSeparator;
}

struct DateAndTime {
  std::string date;
  double fraction = 0;  // of the day; outside 0 to 1 for a time that there is not
};

// Cuts the time of day off at the first colon. Minutes above 59 count on into the next hours.
DateAndTime SplitTime(std::string text) {
  if (!Contains(text, ":")) text += "12:00";
  const std::size_t colon = text.find(':');
  const bool two_digit_hour = colon >= 2 && IsDigit(text[colon - 2]);
  const std::size_t begin = colon - (two_digit_hour ? 2 : 1);
  std::string time(two_digit_hour ? "" : "0");
  time.append(text, begin, colon - begin + 3);
  const double hours = LeadingNumber(std::string_view(time).substr(0, 2));
  const double minutes = LeadingNumber(std::string_view(time).substr(3));
  return {text.substr(0, begin), (hours * kMinutesPerHour + minutes) / kMinutesPerDay};
}

Entry Failed(std::int16_t code) {
  Entry entry;
  entry.code = code;
  return entry;
}

Entry ParseDayCount(std::string_view text, const EntryContext& context) {
  if (!context.history_recall && Contains(text, ":")) return Failed(kTimeNotPermitted);
  // Another calendar named beside the day count goes first, and no date of one has a single dash.
  const auto named = FindCalendar(text, Sought::kWithDates);
  if (named && *named != kOLW) return Failed(RowOf(*named).failure);
  const Calendar calendar = Contains(text, AbbreviationOf(kCJD)) ? kCJD : kAJD;
  const double count = LeadingNumber(BeforeAbbreviation(text, calendar));
  Entry entry;
  entry.calendar = calendar;
  entry.ajd =
      calendar == kCJD ? CJDToAJD(LocalCJD(count), context.offset_minutes) : UniversalTime(count);
  return entry;
}

ReadDay ParseDay(Calendar calendar, std::string_view date) {
  try {
    return RowOf(calendar).read(date);
  } catch (const RuntimeError&) {  // a number too large for the calendar's arithmetic
    return {RowOf(calendar).failure, {}};
  }
}

Entry ParseDateAndTime(const std::string& text, const EntryContext& context) {
  const DateAndTime parts = SplitTime(text);
  if (parts.fraction < 0 || parts.fraction >= 1) return Failed(kInvalidTime);
  const auto calendar = FindCalendar(parts.date, Sought::kWithDates);
  if (!calendar) return Failed(kUnparsable);
  const ReadDay day = ParseDay(*calendar, BeforeAbbreviation(parts.date, *calendar));
  if (day.code != kEntryOk) return Failed(day.code);
  Entry entry;
  entry.calendar = *calendar;
  const double time = parts.fraction + RowOf(*calendar).day_shift;
  entry.ajd = CJDToAJD(LocalCJD(day.day_number.value + time), context.offset_minutes);
  return entry;
}

Entry ParseWithCalendar(const std::string& text, const EntryContext& context) {
  const std::int16_t code = CheckSeparators(text);
  if (code != kEntryOk) return Failed(code);
  return HasDayCount(text) ? ParseDayCount(text, context) : ParseDateAndTime(text, context);
}

}  // namespace

Entry ParseEntry(std::string_view text, const EntryContext& context) {
  std::string working = RemoveChars(text, ", ");
  if (working.empty() || (working.front() != '-' && !IsDigit(working.front()))) {
    return Failed(kInvalidEntry);
  }
  const std::optional<Calendar> named = FindCalendar(working, Sought::kAny);
  if (named) {
    return IsFollowedProperly(working, AbbreviationOf(*named)) ? ParseWithCalendar(working, context)
                                                               : Failed(kCalendarMissing);
  }
  if (Contains(text, " ")) return Failed(kCalendarMissing);
  working += AbbreviationOf(context.current_calendar);
  Entry entry = ParseWithCalendar(working, context);
  entry.calendar_supplied = true;
  return entry;
}

}  // namespace tarnwick
