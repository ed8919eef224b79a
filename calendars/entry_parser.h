#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick {

// Why an entry is refused; each has a message of its own. 0 is success.
enum EntryCode : std::int16_t {
  kEntryOk = 0,
  kInvalidEntry = 1,
  kCalendarMissing = 2,
  kTimeNotPermitted = 3,
  kInvalidTime = 4,
  kInvalidSeparator = 5,
  kInvalidCE = 6,
  kInvalidJC = 7,
  kInvalidARC = 8,
  kInvalidSD = 9,
  kInvalidLLT = 10,
  kInvalidKSG = 11,
  kInvalidDayCount = 12,
  kUnparsable = 13,
  kInvalidPlusMinus = 14,
  kInvalidOLW = 15,
  kInvalidOLWMonth = 16,
  kInvalidOLWWeek = 17,
  kInvalidOLWDay = 18,
  kNoDateGiven = 19,
};

// The text of the message box for a code; "Unknown error." for any other number.
std::string_view EntryErrorText(std::int16_t code);

// What the reading of an entry depends on besides its text.
struct EntryContext {
  std::int16_t current_calendar = 0;  // read where the entry names no calendar
  int offset_minutes = 0;             // local time less Greenwich time, 0 when Greenwich is chosen
  bool history_recall = false;        // recalled entries carry a time with CJD and AJD too
};

struct Entry {
  std::int16_t code = kEntryOk;
  std::int16_t calendar = -1;      // the calendar recognised; -1 when the entry fails
  double ajd = 0;                  // the moment, in Universal Time; 0 when the entry fails
  bool calendar_supplied = false;  // the text named no calendar and the current one was taken
};

// Reads one entry such as "2003-12-31 CE 15:55": a date, the abbreviation of its calendar, a time
// (noon when there is none) and perhaps a remark in parentheses. The text is trimmed and in upper
// case; blanks and commas in it do not count. Never throws.
Entry ParseEntry(std::string_view text, const EntryContext& context);

}  // namespace tarnwick
