// The quiet line below the entry box: what may be typed, and what is wrong with an entry that was
// refused. Every text is one line of at most 90 characters or so.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "calendars/calendar_table.h"

namespace tarnwick {

// What may be typed, with an example in a calendar: "A date in any of the nine, a time if you like:
// 33-38-05-15 SD 20:21".
std::string EntryHint(Calendar calendar);

// Why this entry, which is trimmed and in upper case, is refused with this code of EntryCode where
// it belongs to the current calendar if it names none. Never throws.
//   "2023-02-29 CE"     "February 2023 has 28 days"
//   "2000-01-01 CE 3PM" "A time is HH:MM in 24 hours, without AM and PM"
std::string RefusalHint(std::string_view text, Calendar current, std::int16_t code);

// The same for an entry whose moment lies beyond the later or the earlier limit:
// "-5000-01-01 CE lies before -3200-01-01 CE".
std::string OutOfRangeHint(std::string_view text, bool late);

}  // namespace tarnwick
