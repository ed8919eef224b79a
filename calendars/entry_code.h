// Why an entry is refused.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarnwick {

// Each has a message of its own. 0 is success.
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

}  // namespace tarnwick
