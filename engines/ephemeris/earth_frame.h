// How the Earth stands and turns under the stars.
//
// Mean obliquity: Laskar, Astronomy and Astrophysics 157 (1986), table 8. Nutation: its four
// largest terms (Meeus, Astronomical Algorithms, 2nd ed., ch. 22), good to 0.5". Sidereal time:
// Earth rotation angle (Capitaine, Guinot, McCarthy 2000) and the accumulated precession in right
// ascension of Vondrak, Capitaine and Wallace, Astronomy and Astrophysics 534 (2011), over the
// whole range of the ephemeris, where the usual polynomials are up to 13 s off.
#pragma once

#include "engines/ephemeris/vector3.h"

namespace tarnwick {

// Mean obliquity of the ecliptic, radians, at an AJD in Terrestrial Time. It keeps its value beyond
// the ends of the ephemeris.
double MeanObliquity(double ajd_tt);

// Nutation in longitude and in obliquity, radians.
struct Nutation {
  double longitude = 0;
  double obliquity = 0;
};
Nutation NutationAt(double ajd_tt);

// Apparent sidereal time at Greenwich, radians in [0, 2 pi), by the AJD in Universal Time, which
// tells how far the Earth has turned, and in Terrestrial Time.
double ApparentSiderealTime(double ajd_ut, double ajd_tt);

// Turns vectors in the mean ecliptic and equinox of date, as the series give them, into the frame
// that turns with the Earth: x to the meridian of Greenwich on the true equator, z to the north
// pole. `delta_t` is Terrestrial less Universal Time, in days.
class EarthFrame {
 public:
  EarthFrame(double ajd_tt, double delta_t);

  Vector3 FromEcliptic(const Vector3& a) const { return {Dot(x_, a), Dot(y_, a), Dot(z_, a)}; }
  Vector3 ToEcliptic(const Vector3& a) const { return a.x * x_ + a.y * y_ + a.z * z_; }

 private:
  Vector3 x_;  // the axes of the frame in ecliptic coordinates
  Vector3 y_;
  Vector3 z_;
};

}  // namespace tarnwick
