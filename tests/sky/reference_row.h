// What the reference tables of the sky have in common.
#pragma once

#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "engines/instant.h"
#include "engines/time_units.h"
#include "sky/geo_point.h"
#include "tests/error_statistics.h"
#include "tests/reference_data.h"

namespace tarnwick {

inline double NumberIn(const ReferenceRow& row, const std::string& column) {
  return std::stod(row.at(column));
}

inline Observer ObserverOf(const ReferenceRow& row) {
  return ObserverAt({NumberIn(row, "lat"), NumberIn(row, "lon")});
}

// Days.
inline double DeltaTOf(const ReferenceRow& row) {
  return NumberIn(row, "delta_t") / kSecondsPerDay;
}

// Errors of an event that has a column, and of risings and settings in the column `rate` the speed
// of the altitude, " a second. They must exist in the same rows.
class EventErrors {
 public:
  void Add(const std::optional<UniversalTime>& found, const ReferenceRow& row,
           const std::string& column, const std::string& rate) {
    ASSERT_EQ(found.has_value(), !row.at(column).empty()) << row.at("place") << " " << column;
    if (!found) return;
    const double error = found->days - NumberIn(row, column);
    const double limit = rate.empty() ? 0.1 : 0.2 + 2 / NumberIn(row, rate);
    seconds_.Add(error * kSecondsPerDay);
    shares_.Add(error * kSecondsPerDay / limit);
  }

  void Judge(const std::string& what) const {
    seconds_.Print(what, "s");
    shares_.Print(what, "of the limit");
    EXPECT_LT(shares_.Largest(), 1) << what;
  }

 private:
  ErrorStatistics seconds_;
  ErrorStatistics shares_;
};

}  // namespace tarnwick
