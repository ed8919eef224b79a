// The rows of a table on their way out.
#pragma once

#include <ostream>
#include <span>
#include <string>

#include "calendars/text.h"
#include "engines/instant.h"
#include "lists/finders.h"

namespace tarnwick {

// Where a table goes, and how far it has come.
class Printer {
 public:
  Printer(const Period& period, std::ostream& out, std::ostream* progress)
      : period_(period), out_(out), progress_(progress) {}

  // Prints a row that belongs to a moment; false when the output takes no more.
  bool Print(UniversalTime moment, const std::string& row) {
    ShowProgress(moment);
    out_ << row << '\n';
    return out_.good();
  }

 private:
  void ShowProgress(UniversalTime moment) {
    if (progress_ == nullptr) return;
    const int percent = static_cast<int>(100 * PartBefore(period_, moment));
    if (percent == percent_) return;
    percent_ = percent;
    *progress_ << '\r' << percent << " %" << std::flush;
  }

  Period period_;
  std::ostream& out_;
  std::ostream* progress_;
  int percent_ = -1;
};

// A row of CSV.
inline std::string Join(std::span<const std::string> cells) {
  std::string row;
  for (const std::string& cell : cells) {
    if (!row.empty()) row += ',';
    row += cell;
  }
  return row;
}

// An instant.
template <class Scale>
std::string Cell(Instant<Scale> instant) {
  return FormatFixed(instant.days, 7, false);
}

// Empty for what a kind of eclipse does not have.
inline std::string Optional(double value, int decimals) {
  return value == 0 ? "" : FormatFixed(value, decimals, false);
}

}  // namespace tarnwick
