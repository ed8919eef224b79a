// Trigonometric series in many angles, evaluated with their rates. How the terms lie in memory
// tells series_layout.h.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "engines/ephemeris/arguments.h"
#include "engines/ephemeris/series_layout.h"

namespace tarnwick {

// The sum of a table's terms in the table's unit, and its rate a day. The rate leaves out the slow
// change of the amplitudes, a ten-millionth of it.
struct SeriesValue {
  double value = 0;
  double rate = 0;
};

// Several series, to be evaluated at the same instants.
class SeriesSet {
 public:
  static constexpr std::size_t kMaximum = 6;
  using Values = std::array<SeriesValue, kMaximum>;  // in the order of the tables

  SeriesSet(std::span<const SeriesTable> tables, std::span<const PhasorProduct> products);

  Values Evaluate(const Arguments& arguments) const;

 private:
  SeriesLayout layout_;
  // Of all phasors, radians a day. In ten thousand years the rates of the angles change by two
  // millionths: that is nothing for a small term.
  std::vector<float> mean_rates_;
};

}  // namespace tarnwick
