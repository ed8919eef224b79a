// Moon and Sun through the hours around a new or full moon, or through a day.
//
// The series cost microseconds and an eclipse asks for some fifty positions, so that they are
// evaluated at three instants only, of which the search for the syzygy has made the middle one. A
// polynomial of the fifth degree goes through the three places with the velocities found there
// (Hermite). Within the hours of an eclipse the Moon strays from the series by less than 1e-8 Earth
// radii, the axis of its shadow by less than 2e-8; the Sun by less than 4e-6, because the
// velocities leave out the slow change of the amplitudes. Within a day the Moon strays by less than
// 0.001".
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
  // As far as an eclipse needs: the longest penumbral ones last 6.4 hours, and greatest eclipse
  // stays within half an hour of the syzygy.
  static constexpr double kReach = 0.2;

  // Its middle (AJD, Terrestrial Time), for an eclipse within minutes of the syzygy, and the places
  // then. The track is good for offsets from its middle of up to `reach` days either way.
  MoonSunTrack(double middle, const MoonAndSunVectors& places, double reach = kReach);

  // Places at so many days after the middle.
  MoonAndSunVectors At(double offset) const { return {MoonAt(offset), SunAt(offset)}; }
  MovingVector MoonAt(double offset) const { return Evaluate(moon_, offset); }
  MovingVector SunAt(double offset) const { return Evaluate(sun_, offset); }

  // The offset, within reach, at which the vector that `distance` makes of the places is shortest.
  // That vector must move nearly along a straight line. Gauss-Newton; each step leaves less than a
  // hundredth of the error.
  template <class Distance>
  double ClosestApproach(const Distance& distance) const {
    double offset = 0;
    for (int i = 0; i < 6; ++i) {
      offset = std::clamp(offset + TimeToClosest(distance(At(offset))), -reach_, reach_);
    }
    return offset;
  }

 private:
  using Coefficients = std::array<Vector3, 6>;  // by powers of offset / reach

  Coefficients Interpolate(const MovingVector& before, const MovingVector& middle,
                           const MovingVector& after) const;
  MovingVector Evaluate(const Coefficients& coefficients, double offset) const;

  double reach_;
  Coefficients moon_;
  Coefficients sun_;
};

}  // namespace tarnwick
