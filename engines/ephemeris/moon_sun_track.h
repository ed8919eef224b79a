// Moon and Sun through the hours around a new or full moon.
//
// The series cost microseconds and an eclipse asks for some fifty positions, so that they are
// evaluated at three instants only, of which the search for the syzygy has made the middle one. A
// polynomial of the fifth degree goes through the three places with the velocities found there
// (Hermite). The Moon strays from the series by less than 1e-8 Earth radii, the axis of its shadow
// by less than 2e-8; the Sun by less than 4e-6, because the velocities leave out the slow change of
// the amplitudes.
//
// Rectangular coordinates in the mean ecliptic and equinox of date: x to the equinox, z to the pole
// of the ecliptic. Unit: the Earth's equatorial radius, 6378.137 km. Time: days, Terrestrial Time.
#pragma once

#include <algorithm>
#include <array>

#include "engines/ephemeris/positions.h"
#include "engines/ephemeris/vector3.h"

namespace tarnwick {

inline constexpr double kKmPerEarthRadius = 6378.137;
inline constexpr double kEarthRadiiPerAu = kKmPerAu / kKmPerEarthRadius;

// The Sun's semi-diameter at a distance of one astronomical unit (Auwers 1891), radians.
inline constexpr double kSunSemiDiameter = 959.63 * kRadiansPerArcsecond;

struct MoonAndSunVectors {
  MovingVector moon;
  MovingVector sun;
};

// Apparent geocentric places as vectors.
MoonAndSunVectors VectorsOf(const MoonAndSun& positions);

// Days until a vector is shortest if it goes on along a straight line.
inline double TimeToClosest(const MovingVector& a) {
  return -Dot(a.value, a.rate) / Dot(a.rate, a.rate);
}

class MoonSunTrack {
 public:
  // The track is good for offsets from its middle of up to this many days either way: the longest
  // penumbral eclipses last 6.4 hours, and greatest eclipse stays within half an hour of the
  // syzygy.
  static constexpr double kReach = 0.2;

  // Its middle (AJD, Terrestrial Time), within minutes of the syzygy, and the places then.
  MoonSunTrack(double middle, const MoonAndSunVectors& places);

  // Places at so many days after the middle.
  MoonAndSunVectors At(double offset) const;

  // The offset, within reach, at which the vector that `distance` makes of the places is shortest.
  // That vector must move nearly along a straight line. Gauss-Newton; each step leaves less than a
  // hundredth of the error.
  template <class Distance>
  double ClosestApproach(const Distance& distance) const {
    double offset = 0;
    for (int i = 0; i < 6; ++i) {
      offset = std::clamp(offset + TimeToClosest(distance(At(offset))), -kReach, kReach);
    }
    return offset;
  }

 private:
  using Coefficients = std::array<Vector3, 6>;  // by powers of offset / kReach

  static Coefficients Interpolate(const MovingVector& before, const MovingVector& middle,
                                  const MovingVector& after);
  static MovingVector Evaluate(const Coefficients& coefficients, double offset);

  Coefficients moon_;
  Coefficients sun_;
};

}  // namespace tarnwick
