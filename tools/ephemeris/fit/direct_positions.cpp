// The routines of positions.h by JPL DE431 itself. A program that links this takes its phases and
// eclipses from the ephemeris instead of the series: the library's own object is left out.
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

#include "engines/ephemeris/positions.h"
#include "tools/ephemeris/fit/de431.h"

namespace tarnwick {
namespace {

constexpr double kRadian = std::numbers::pi / 180;
// Days between the places that give the rates: what they leave out is below 0.0001" a day, and what
// the last digits of places make of it below 0.01".
constexpr double kStep = 0.05;

using Place = std::array<double, 3>;  // longitude and latitude in degrees, distance in au

// From one place to another not far off.
Place Difference(const Place& from, const Place& to) {
  return {std::remainder(to[0] - from[0], 360), to[1] - from[1], to[2] - from[2]};
}

Position PositionOf(const Place& place, const Place& rate) {
  return {{place[0] * kRadian, rate[0] * kRadian},
          {place[1] * kRadian, rate[1] * kRadian},
          place[2] * kKmPerAu,
          rate[2] * kKmPerAu};
}

// The rates are those of the places around: those that the library offers leave out a part of
// what light-time does, 0.3" a day in the Moon's longitude. They are the derivative, in the middle,
// of the polynomial through five places (Meeus, Astronomical Algorithms, 2nd ed., ch. 3).
Position PositionAt(De431Body body, double ajd_tt) {
  const auto place_after = [&](int steps) { return De431Place(body, ajd_tt + steps * kStep); };
  const Place near = Difference(place_after(-1), place_after(1));
  const Place far = Difference(place_after(-2), place_after(2));
  Place rate;
  for (std::size_t i = 0; i < rate.size(); ++i) rate[i] = (8 * near[i] - far[i]) / (12 * kStep);
  return PositionOf(place_after(0), rate);
}

}  // namespace

MoonAndSun PositionsAt(double ajd_tt) {
  return {PositionAt(De431Body::kMoon, ajd_tt), PositionAt(De431Body::kSun, ajd_tt)};
}

MovingAngle RoughElongationAt(double ajd_tt) {
  const auto [moon, sun] = PositionsAt(ajd_tt);
  return {moon.longitude.value - sun.longitude.value, moon.longitude.rate - sun.longitude.rate};
}

}  // namespace tarnwick
