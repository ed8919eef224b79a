// How an entry is cut up: date, abbreviation of a calendar, time, remark. Entries are in upper
// case, without blanks and commas.
#pragma once

#include <optional>
#include <string_view>

#include "calendars/calendar_table.h"

namespace tarnwick {

bool IsDigit(char c);

// A remark reaches from the first "(" to the last ")", or to the end.
std::string_view BeforeRemark(std::string_view text);
bool GoesOnAfterRemark(std::string_view text);

enum class Sought { kAny, kWithDates };

// The first calendar whose abbreviation occurs anywhere in the text.
std::optional<Calendar> FindCalendar(std::string_view text, Sought sought);

// Whether a calendar without time is named anywhere in the text.
bool HasDayCount(std::string_view text);

// What stands before the abbreviation of a calendar, and what after it.
struct EntryParts {
  std::string_view date;
  std::string_view time;
};

// Cuts a text in which the calendar is named.
EntryParts SplitAt(std::string_view text, Calendar calendar);

}  // namespace tarnwick
