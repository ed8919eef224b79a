#include "calendars/entry_parser.h"

#include <optional>
#include <string>

#include "calendars/date_processing.h"
#include "calendars/entry_parts.h"
#include "calendars/text.h"
#include "engines/checked_arithmetic.h"
#include "engines/time_units.h"

namespace tarnwick {
namespace {

// Only a time can follow the abbreviation.
bool IsFollowedProperly(std::string_view text, Calendar calendar) {
  const std::string_view time = SplitAt(text, calendar).time;
  return time.empty() || IsDigit(time.front());
}

std::int16_t CheckSeparators(std::string_view text) {
  const bool day_count = HasDayCount(text);
  const std::size_t found = day_count ? text.find('-', 1) : text.find_first_of("./");
  if (found == std::string_view::npos) return kEntryOk;
  return day_count ? kInvalidDayCount : kInvalidSeparator;
}

bool IsOneOrTwoDigits(std::string_view text) {
  return (text.size() == 1 || text.size() == 2) && IsDigit(text.front()) && IsDigit(text.back());
}

// The fraction of the day, noon where there is no text; nothing for a text that is no time. Minutes
// above 59 count on into the next hours.
std::optional<double> ReadTime(std::string_view text) {
  if (text.empty()) return 0.5;
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const std::string_view hours = text.substr(0, colon);
  const std::string_view minutes = text.substr(colon + 1);
  if (!IsOneOrTwoDigits(hours) || !IsOneOrTwoDigits(minutes)) return std::nullopt;
  const double fraction =
      (LeadingNumber(hours) * kMinutesPerHour + LeadingNumber(minutes)) / kMinutesPerDay;
  return fraction < 1 ? std::optional(fraction) : std::nullopt;
}

Entry Failed(std::int16_t code) {
  Entry entry;
  entry.code = code;
  return entry;
}

Entry ParseDayCount(std::string_view text, const EntryContext& context) {
  // Another calendar goes first, and this is none of its dates.
  if (const auto beside = FindCalendar(text, Sought::kWithDates)) {
    return Failed(RowOf(*beside).failure);
  }
  const Calendar calendar = Contains(text, AbbreviationOf(kCJD)) ? kCJD : kAJD;
  const EntryParts parts = SplitAt(text, calendar);
  const bool has_time = !parts.time.empty() || Contains(text, ":");
  if (has_time && !context.history_recall) return Failed(kTimeNotPermitted);
  if (!IsSignedNumber(parts.date, false)) return Failed(kInvalidDayCount);
  const double count = LeadingNumber(parts.date);
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

Entry ParseDateAndTime(std::string_view text, Calendar calendar, const EntryContext& context) {
  const EntryParts parts = SplitAt(text, calendar);
  if (Contains(parts.date, ":")) return Failed(kUnparsable);  // the calendar stands after the time
  const auto fraction = ReadTime(parts.time);
  if (!fraction) return Failed(kInvalidTime);
  const ReadDay day = ParseDay(calendar, parts.date);
  if (day.code != kEntryOk) return Failed(day.code);
  Entry entry;
  entry.calendar = calendar;
  const double time = *fraction + RowOf(calendar).day_shift;
  entry.ajd = CJDToAJD(LocalCJD(day.day_number.value + time), context.offset_minutes);
  return entry;
}

Entry ParseWithCalendar(std::string_view text, Calendar calendar, const EntryContext& context) {
  const std::int16_t code = CheckSeparators(text);
  if (code != kEntryOk) return Failed(code);
  return HasDayCount(text) ? ParseDayCount(text, context)
                           : ParseDateAndTime(text, calendar, context);
}

}  // namespace

Entry ParseEntry(std::string_view text, const EntryContext& context) {
  const std::string whole = RemoveChars(text, ", ");
  if (whole.empty() || (whole.front() != '-' && !IsDigit(whole.front()))) {
    return Failed(kInvalidEntry);
  }
  if (GoesOnAfterRemark(whole)) return Failed(kInvalidTime);
  std::string working(BeforeRemark(whole));
  const std::optional<Calendar> named = FindCalendar(working, Sought::kAny);
  if (named) {
    return IsFollowedProperly(working, *named) ? ParseWithCalendar(working, *named, context)
                                               : Failed(kCalendarMissing);
  }
  if (Contains(text, " ")) return Failed(kCalendarMissing);
  working += AbbreviationOf(context.current_calendar);
  Entry entry = ParseWithCalendar(working, context.current_calendar, context);
  entry.calendar_supplied = true;
  return entry;
}

}  // namespace tarnwick
