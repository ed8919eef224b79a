#include "calendars/entry_parser.h"

#include <array>
#include <cctype>
#include <optional>

#include "calendars/archetypes.h"
#include "calendars/calendar_table.h"
#include "calendars/date_processing.h"
#include "calendars/goddess.h"
#include "calendars/lunar_week.h"
#include "calendars/solilunar.h"
#include "calendars/text.h"
#include "calendars/triday.h"
#include "engines/checked_arithmetic.h"
#include "engines/time_units.h"

namespace tarnwick {
namespace {

constexpr std::array<std::string_view, 20> kErrorTexts{
    "",
    "Invalid date entry.",
    "Calendar must be specified (one of CE, JC, ARC, SD, LLT, OLW, CJD and AJD).",
    "Time specification not permitted with CJD or AJD.",
    "Invalid time specification.  Times must be, e.g., 23:50.",
    "Date separator must be a dash, '-'.",
    "Invalid CE date.  CE dates must be in ISO 8601 format: year-month-day",
    "Invalid JC date.  JC dates must be in ISO 8601 format: year-month-day",
    "Invalid ARC date.  ARC dates must be in the form: year-month-day",
    "Invalid SD date.  SD dates must be in the form: cycle-year-month-day",
    "Invalid LLT date.  LLT dates must be in the form: cycle-year-month-triday-day or "
    "year-month-triday-day",
    "Invalid KSG date.  KSG dates must be in the form: cycle-year-month-day or year-month-day",
    "Invalid CJD or AJD date.  These must be, e.g., 999999.99 CJD or 2,111,111 AJD.",
    "Error when parsing date string.",
    "Value for addition or subtraction is invalid.",
    "Invalid OLW date.  OWL dates must be in the form: year-month-week-day",
    "Invalid month value in OLW date.",
    "Invalid week value in OLW date.",
    "Invalid day value in OLW date.",
    "No date given.",
};

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

// A date text on its way to a day number.
struct DayResult {
  std::int16_t code = kEntryOk;
  std::int32_t day_number = 0;
};

DayResult FailedDay(std::int16_t code) { return {code, 0}; }

DayResult ParseEuroDay(std::string_view date, char letter, std::int16_t failure) {
  DateRecord record;
  record.calendar = letter;
  if (ParseDateString(date, record) != kDateParsed) return FailedDay(failure);
  return {kEntryOk, euro_date_to_jdn(record)};
}

DayResult ParseCEDay(std::string_view date) { return ParseEuroDay(date, 'G', kInvalidCE); }
DayResult ParseJCDay(std::string_view date) { return ParseEuroDay(date, 'J', kInvalidJC); }

DayResult ParseARCDay(std::string_view date) {
  DateRecord record;
  record.calendar = 'R';
  if (ParseDateString(date, record) != kDateParsed) return FailedDay(kInvalidARC);
  ARCDate arc;
  arc.year = record.year;
  arc.month = record.month;
  arc.day = record.day;
  if (!ARCDateToJDN(arc)) return FailedDay(kInvalidARC);
  return {kEntryOk, arc.jdn};
}

// For a calendar whose own module reads its texts.
template <typename Record>
DayResult ParseOwnDay(std::string_view date, bool (*parse)(std::string_view, Record&),
                      bool (*to_jdn)(Record&), std::int16_t failure) {
  Record record;
  if (!parse(date, record) || !to_jdn(record)) return FailedDay(failure);
  return {kEntryOk, record.jdn};
}

DayResult ParseSDDay(std::string_view date) {
  return ParseOwnDay(date, ParseSDDate, SDDateToJDN, kInvalidSD);
}
DayResult ParseLLTDay(std::string_view date) {
  return ParseOwnDay(date, ParseLLTDate, LLTToJDN, kInvalidLLT);
}
DayResult ParseKSGDay(std::string_view date) {
  return ParseOwnDay(date, ParseKSGDate, KSGDateToJDN, kInvalidKSG);
}

DayResult ParseOLWDay(std::string_view date) {
  OLWDate olw;
  const std::int16_t status = ParseOLWDate(date, olw);
  switch (status) {
    case kOLWValid:
      return {kEntryOk, olw.jdn};
    case kOLWBadMonth:
      return FailedDay(kInvalidOLWMonth);
    case kOLWBadWeek:
      return FailedDay(kInvalidOLWWeek);
    case kOLWBadDay:
      return FailedDay(kInvalidOLWDay);
    default:
      return FailedDay(kInvalidOLW);
  }
}

// How each calendar with a day number reads its date texts.
struct DayParser {
  Calendar calendar;
  std::int16_t failure;
  DayResult (*parse)(std::string_view date);
};

// In the order in which a text is searched for their abbreviations.
constexpr std::array kDayParsers{
    DayParser{kCE, kInvalidCE, ParseCEDay},    DayParser{kJC, kInvalidJC, ParseJCDay},
    DayParser{kARC, kInvalidARC, ParseARCDay}, DayParser{kSD, kInvalidSD, ParseSDDay},
    DayParser{kLLT, kInvalidLLT, ParseLLTDay}, DayParser{kKSG, kInvalidKSG, ParseKSGDay},
    DayParser{kOLW, kInvalidOLW, ParseOLWDay},
};

const DayParser* FindDayParser(std::string_view text) {
  for (const DayParser& parser : kDayParsers) {
    if (Contains(text, AbbreviationOf(parser.calendar))) return &parser;
  }
  return nullptr;
}

// The first abbreviation of the calendar table that occurs anywhere in the text.
std::optional<std::int16_t> FindCalendar(std::string_view text) {
  for (std::int16_t i = 0; i < kCalendarCount; ++i) {
    if (Contains(text, AbbreviationOf(i))) return i;
  }
  return std::nullopt;
}

// After the abbreviation come the time, a remark in parentheses, or nothing.
bool IsFollowedProperly(std::string_view text, std::string_view abbreviation) {
  const std::size_t next = text.find(abbreviation) + abbreviation.size();
  return next == text.size() || IsDigit(text[next]) || text[next] == '(';
}

bool HasDayCount(std::string_view text) { return Contains(text, "CJD") || Contains(text, "AJD"); }

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

// The number at the beginning of a day-count entry, as it stands before the abbreviation.
double DayCount(std::string_view text, std::int16_t calendar) {
  return LeadingNumber(text.substr(0, text.find(AbbreviationOf(calendar))));
}

Entry ParseDayCount(std::string_view text, const EntryContext& context) {
  if (!context.history_recall && Contains(text, ":")) return Failed(kTimeNotPermitted);
  // Another calendar named beside the day count goes first, and no date of one has a single dash.
  const DayParser* parser = FindDayParser(text);
  if (parser != nullptr && parser->calendar != kOLW) return Failed(parser->failure);
  Entry entry;
  if (Contains(text, "CJD")) {
    entry.calendar = kCJD;
    entry.ajd = CJDToAJD(DayCount(text, kCJD), context.offset_minutes);
  } else {
    entry.calendar = kAJD;
    entry.ajd = DayCount(text, kAJD);
  }
  return entry;
}

DayResult ParseDay(const DayParser& parser, std::string_view date) {
  try {
    return parser.parse(date);
  } catch (const RuntimeError&) {  // a number too large for the calendar's arithmetic
    return FailedDay(parser.failure);
  }
}

Entry ParseDateAndTime(const std::string& text, const EntryContext& context) {
  const DateAndTime parts = SplitTime(text);
  if (parts.fraction < 0 || parts.fraction >= 1) return Failed(kInvalidTime);
  const DayParser* parser = FindDayParser(parts.date);
  if (parser == nullptr) return Failed(kUnparsable);

  const std::string_view date(parts.date);
  const DayResult day =
      ParseDay(*parser, date.substr(0, date.find(AbbreviationOf(parser->calendar))));
  if (day.code != kEntryOk) return Failed(day.code);
  Entry entry;
  entry.calendar = parser->calendar;
  const double shift = parser->calendar == kOLW ? kOLWDayShift : 0;
  entry.ajd = CJDToAJD(day.day_number + (parts.fraction + shift), context.offset_minutes);
  return entry;
}

Entry ParseWithCalendar(const std::string& text, const EntryContext& context) {
  const std::int16_t code = CheckSeparators(text);
  if (code != kEntryOk) return Failed(code);
  return HasDayCount(text) ? ParseDayCount(text, context) : ParseDateAndTime(text, context);
}

}  // namespace

std::string_view EntryErrorText(std::int16_t code) {
  if (code < 1 || static_cast<std::size_t>(code) >= kErrorTexts.size()) return "Unknown error.";
  return kErrorTexts[static_cast<std::size_t>(code)];
}

Entry ParseEntry(std::string_view text, const EntryContext& context) {
  std::string working = RemoveChars(text, ", ");
  if (working.empty() || (working.front() != '-' && !IsDigit(working.front()))) {
    return Failed(kInvalidEntry);
  }
  const std::optional<std::int16_t> named = FindCalendar(working);
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
