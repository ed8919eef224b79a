// The reading of what the user types: a date in any of the calendars, and a time.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "calendars/calendar_table.h"
#include "calendars/entry_code.h"

namespace tarnwick {

// What the reading of an entry depends on besides its text.
struct EntryContext {
  Calendar current_calendar = kCE;  // read where the entry names no calendar
  int offset_minutes = 0;           // local time less Greenwich time, 0 when Greenwich is chosen
  bool history_recall = false;      // recalled entries carry a time with CJD and AJD too
};

struct Entry {
  std::int16_t code = kEntryOk;
  std::optional<Calendar> calendar;  // that was recognised; nothing when the entry fails
  UniversalTime ajd;                 // the moment; 0 when the entry fails
  bool calendar_supplied = false;    // the text named no calendar and the current one was taken
};

// Reads one entry such as "2003-12-31 CE 15:55 (local)": a date, the abbreviation of its calendar,
// a time "H:MM" (noon when there is none; none beside a day count) and perhaps a remark in
// parentheses, which is not read and ends the entry. The text is trimmed and in upper case; blanks
// and commas in it do not count. Never throws.
Entry ParseEntry(std::string_view text, const EntryContext& context);

}  // namespace tarnwick
