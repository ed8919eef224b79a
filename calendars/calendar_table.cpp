#include "calendars/calendar_table.h"

namespace tarnwick {

std::int16_t CalendarIndex(std::string_view abbreviation) {
  for (std::int16_t i = 0; i < kCalendarCount; ++i) {
    if (kCalendarTable[static_cast<std::size_t>(i)].abbreviation == abbreviation) return i;
  }
  return -1;
}

}  // namespace tarnwick
