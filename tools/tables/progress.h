// How far a table has come.
#pragma once

#include <ostream>

#include "lists/finders.h"

namespace tarnwick {

class Progress {
 public:
  // Shown nowhere if `err` is null.
  Progress(const Period& period, std::ostream* err) : period_(period), err_(err) {}

  void Show(UniversalTime moment) {
    if (err_ == nullptr) return;
    const int percent = static_cast<int>(100 * PartBefore(period_, moment));
    if (percent == percent_) return;
    percent_ = percent;
    *err_ << '\r' << percent << " %" << std::flush;
  }

 private:
  Period period_;
  std::ostream* err_;
  int percent_ = -1;
};

}  // namespace tarnwick
