#include "calendars/entry_parts.h"

#include <cctype>
#include <cstddef>

#include "calendars/text.h"

namespace tarnwick {

bool IsDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

std::string_view BeforeRemark(std::string_view text) { return text.substr(0, text.find('(')); }

bool GoesOnAfterRemark(std::string_view text) {
  const std::size_t begin = text.find('(');
  const std::size_t end = text.rfind(')');
  return end != std::string_view::npos && begin < end && end + 1 < text.size();
}

std::optional<Calendar> FindCalendar(std::string_view text, Sought sought) {
  for (const Calendar calendar : kCalendars) {
    if (sought == Sought::kWithDates && IsDayCount(calendar)) continue;
    if (Contains(text, AbbreviationOf(calendar))) return calendar;
  }
  return std::nullopt;
}

bool HasDayCount(std::string_view text) {
  return Contains(text, AbbreviationOf(kCJD)) || Contains(text, AbbreviationOf(kAJD));
}

EntryParts SplitAt(std::string_view text, Calendar calendar) {
  const std::string_view abbreviation = AbbreviationOf(calendar);
  const std::size_t place = text.find(abbreviation);
  return {text.substr(0, place), text.substr(place + abbreviation.size())};
}

}  // namespace tarnwick
