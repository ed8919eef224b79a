// What stands above the horizon, and when.
#pragma once

#include <optional>

#include "engines/ephemeris/arguments.h"
#include "engines/ephemeris/bounded_search.h"

namespace tarnwick {

// By how much the air lifts what stands at the horizon, radians: 34'.
inline constexpr double kHorizontalRefraction = 34 * 60 * kRadiansPerArcsecond;

// How high the upper limb of a disc stands above the horizon that is seen, radians, by the altitude
// of its centre without refraction. The disc is visible where this is positive.
inline double HeightOfUpperLimb(double altitude, double semi_diameter) {
  return altitude + semi_diameter + kHorizontalRefraction;
}

// The instant next to `from`, on the way to `to` (later or earlier), at which `height` is positive,
// if there is one. `height` must have at most one extreme on that way, as a body has that
// culminates at most once.
template <class Height>
std::optional<double> FirstVisible(const Height& height, double from, double to) {
  if (height(from) > 0) return from;
  if (height(to) > 0) return RootBetween(height, from, to);
  // It may still rise and set between, in the polar winter.
  constexpr double kStep = 1e-3;
  const auto rises = [&](double a, double b) { return height(a + kStep * (b - a)) > height(a); };
  if (!rises(from, to) || !rises(to, from)) return std::nullopt;
  const double highest = MinimumBetween([&](double x) { return -height(x); }, from, to);
  if (height(highest) <= 0) return std::nullopt;
  return RootBetween(height, from, highest);
}

}  // namespace tarnwick
