// The rows of a table on their way out.
#pragma once

#include <ostream>
#include <span>
#include <string>

#include "calendars/calendar_table.h"
#include "calendars/date_processing.h"
#include "calendars/date_texts.h"
#include "calendars/text.h"
#include "engines/instant.h"
#include "tools/tables/progress.h"

namespace tarnwick {

// Where a table goes, and how far it has come.
class Printer {
 public:
  Printer(std::ostream& out, const Progress& progress) : out_(out), progress_(progress) {}

  // Prints a row that belongs to a moment; false when the output takes no more.
  bool Print(UniversalTime moment, const std::string& row) {
    progress_.Show(moment);
    out_ << row << '\n';
    return out_.good();
  }

 private:
  std::ostream& out_;
  Progress progress_;
};

// A row of CSV.
inline std::string Join(std::span<const std::string> cells) {
  std::string row;
  for (const std::string& cell : cells) row += cell + ',';
  row.pop_back();
  return row;
}

// An instant.
template <class Scale>
std::string Cell(Instant<Scale> instant) {
  return FormatFixed(instant.days, 7, false);
}

// A date without its abbreviation; a day count with four decimals.
inline std::string DateCell(Calendar calendar, UniversalTime moment, int offset_minutes) {
  if (calendar == kAJD) return FormatFixed(moment.days, 4, false);
  if (calendar == kCJD) return FormatFixed(AJDToCJD(moment, offset_minutes).days, 4, false);
  std::string text = ShortDateText(calendar, moment, offset_minutes);
  text.resize(text.find(' '));
  return text;
}

// Empty for what a kind of eclipse does not have.
inline std::string Optional(double value, int decimals) {
  return value == 0 ? "" : FormatFixed(value, decimals, false);
}

}  // namespace tarnwick
