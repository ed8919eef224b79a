// The text of one entry of the log.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendars/calendar_table.h"

namespace tarnwick {

enum class LogLayout {
  kCalendarAndDate,  // "CE=2003-12-31  JC=2003-12-18  "
  kDateOnly,         // "2003-12-18 JC, 3-1-98-6-8 ..."
};

// A date as a label of the main window shows it: "2003-12-31 CE (Wednesday, December 31, 2003)".
struct LogDate {
  Calendar calendar = kCE;
  std::string caption;
};

struct LogEntry {
  std::string result;     // what was entered or reached
  std::string operation;  // what was done
  std::string extra;      // a further line, if not empty
  LogLayout layout = LogLayout::kCalendarAndDate;
  std::vector<LogDate> dates = {};        // in the order in which they are written
  std::optional<std::string> phase = {};  // the captions of the Moon's labels, where wanted
  std::optional<std::string> age = {};
};

// Takes the next piece of an entry.
using LogSink = std::function<void(std::string_view piece)>;

// Writes an entry piece by piece, each line ended by CR LF and the entry by an empty line. Throws
// RuntimeError where a caption lacks the mark at which it is cut; what was written before stays.
void WriteLogEntry(const LogEntry& entry, const LogSink& sink);

}  // namespace tarnwick
