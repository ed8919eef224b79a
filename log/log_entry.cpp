#include "log/log_entry.h"

#include "engines/checked_arithmetic.h"

namespace tarnwick {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

[[noreturn]] void ThrowBadCaption() { throw RuntimeError("Invalid procedure call or argument"); }

std::size_t FindMark(std::string_view caption, std::string_view mark) {
  const std::size_t place = caption.find(mark);
  if (place == std::string_view::npos) ThrowBadCaption();
  return place;
}

std::string_view Before(std::string_view caption, std::string_view mark) {
  return caption.substr(0, FindMark(caption, mark));
}

// Without the blank that stands before the mark.
std::string_view BeforeBlankAnd(std::string_view caption, std::string_view mark) {
  const std::size_t place = FindMark(caption, mark);
  if (place == 0) ThrowBadCaption();
  return caption.substr(0, place - 1);
}

// A date as the layout without calendar names shows it. In the CE and JC labels the first comma
// stands behind the weekday, so that the weekday is part of it.
std::string_view DateText(const LogDate& date) {
  if (IsDayCount(date.calendar)) return date.caption;
  if (date.calendar == kCE || date.calendar == kJC) {
    return Before(date.caption, ",");
  }
  return BeforeBlankAnd(date.caption, "(");
}

// Writes an entry line by line.
class LogWriter {
 public:
  explicit LogWriter(const LogSink& sink) : sink_(sink) {}

  void WriteLine(std::string_view text) {
    sink_(text);
    sink_(kLineEnd);
  }
  void WriteDates(const LogEntry& entry);
  void WriteMoon(const LogEntry& entry);

 private:
  void AppendLogSeparator();
  void Append(std::string_view text) {
    sink_(text);
    blnLineEmpty_ = false;
  }

  const LogSink& sink_;
  bool blnLineEmpty_ = true;  // nothing has been written on the current line
};

void LogWriter::AppendLogSeparator() {
  if (!blnLineEmpty_) sink_(", ");
}

void LogWriter::WriteDates(const LogEntry& entry) {
  for (const LogDate& date : entry.dates) {
    if (entry.layout == LogLayout::kDateOnly) {
      AppendLogSeparator();
      Append(DateText(date));
    } else {
      const std::string_view abbreviation = AbbreviationOf(date.calendar);
      Append(std::string(abbreviation) + "=");
      Append(BeforeBlankAnd(date.caption, abbreviation));
      Append("  ");
    }
  }
  if (!blnLineEmpty_) sink_(kLineEnd);
  blnLineEmpty_ = true;
}

void LogWriter::WriteMoon(const LogEntry& entry) {
  if (entry.phase) {
    const std::size_t comma = FindMark(*entry.phase, ",");
    Append(std::string_view(*entry.phase).substr(0, comma));
    Append(", illum. = ");
    Append(std::string_view(*entry.phase).substr(comma + 1));
  }
  if (entry.age) {
    Append(blnLineEmpty_ ? "Lunation and age = " : ", lunat. and age = ");
    Append(*entry.age);
  }
  if (entry.phase || entry.age) WriteLine(".");
}

}  // namespace

void WriteLogEntry(const LogEntry& entry, const LogSink& sink) {
  LogWriter writer(sink);
  writer.WriteLine(entry.operation);
  writer.WriteLine(entry.result);
  writer.WriteDates(entry);
  writer.WriteMoon(entry);
  if (!entry.extra.empty()) writer.WriteLine(entry.extra);
  writer.WriteLine("");
}

}  // namespace tarnwick
