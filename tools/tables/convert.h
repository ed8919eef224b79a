// Entries, one a line, as moments and in all calendars.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "calendars/calendar_table.h"
#include "calendars/entry_parser.h"

namespace tarnwick {

// The names of the columns.
std::string ConvertHeader();

struct ConvertedEntry {
  std::string row;
  bool refused = false;
};

// A row for an entry, as the entry box takes it. One that is refused, or lies outside the range
// that the program accepts, has its message in the second column, and the others are empty.
ConvertedEntry ConvertEntry(std::string_view entry, const EntryContext& context);

enum class Converted { kAll, kSomeRefused, kInputFailed, kOutputFailed };

// A row for each line, written out before the next one is read.
Converted ConvertLines(std::istream& in, std::ostream& out, const EntryContext& context);

}  // namespace tarnwick
