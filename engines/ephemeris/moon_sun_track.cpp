#include "engines/ephemeris/moon_sun_track.h"

#include <cmath>
#include <cstddef>

namespace tarnwick {
namespace {

MovingVector Rectangular(const Position& position) {
  const double sin_l = std::sin(position.longitude.value);
  const double cos_l = std::cos(position.longitude.value);
  const double sin_b = std::sin(position.latitude.value);
  const double cos_b = std::cos(position.latitude.value);
  const double r = position.distance / kKmPerEarthRadius;
  const Vector3 outward{cos_b * cos_l, cos_b * sin_l, sin_b};
  const Vector3 east{-sin_l, cos_l, 0};
  const Vector3 north{-sin_b * cos_l, -sin_b * sin_l, cos_b};
  return {r * outward, position.distance_rate / kKmPerEarthRadius * outward +
                           r * cos_b * position.longitude.rate * east +
                           r * position.latitude.rate * north};
}

}  // namespace

MoonAndSunVectors VectorsOf(const MoonAndSun& positions) {
  return {Rectangular(positions.moon), Rectangular(positions.sun)};
}

MoonSunTrack::MoonSunTrack(double middle, const MoonAndSunVectors& places, double reach)
    : reach_(reach) {
  const MoonAndSunVectors before = VectorsOf(PositionsAt(middle - reach));
  const MoonAndSunVectors after = VectorsOf(PositionsAt(middle + reach));
  moon_ = Interpolate(before.moon, places.moon, after.moon);
  sun_ = Interpolate(before.sun, places.sun, after.sun);
}

// In u = offset / reach the outer instants are -1 and 1. Half the sum of the outer places gives
// the even powers, half their difference the odd ones; the velocities likewise.
MoonSunTrack::Coefficients MoonSunTrack::Interpolate(const MovingVector& before,
                                                     const MovingVector& middle,
                                                     const MovingVector& after) const {
  const Vector3 even = 0.5 * (after.value + before.value) - middle.value;
  const Vector3 even_slope = 0.5 * reach_ * (after.rate - before.rate);
  const Vector3 c1 = reach_ * middle.rate;
  const Vector3 odd = 0.5 * (after.value - before.value) - c1;
  const Vector3 odd_slope = 0.5 * reach_ * (after.rate + before.rate) - c1;
  const Vector3 c4 = 0.5 * even_slope - even;
  const Vector3 c5 = 0.5 * (odd_slope - 3 * odd);
  return {middle.value, c1, even - c4, odd - c5, c4, c5};
}

MovingVector MoonSunTrack::Evaluate(const Coefficients& coefficients, double offset) const {
  const double u = offset / reach_;
  Vector3 value;
  Vector3 slope;
  for (std::size_t i = coefficients.size(); i-- > 0;) {
    slope = u * slope + value;
    value = u * value + coefficients[i];
  }
  return {value, 1 / reach_ * slope};
}

}  // namespace tarnwick
