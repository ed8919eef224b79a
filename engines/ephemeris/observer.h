// Where the Moon and the Sun stand as seen from a place on the Earth.
#pragma once

#include "engines/ephemeris/vector3.h"

namespace tarnwick {

// Radians. Altitude without refraction, in [-pi/2, pi/2]; azimuth from north through east, in
// [0, 2 pi).
struct Horizontal {
  double altitude = 0;
  double azimuth = 0;
};

// A place on the ellipsoid of spheroid.h, height 0. Vectors are in the frame of EarthFrame, in
// equatorial radii.
class Observer {
 public:
  // Geodetic latitude and longitude east of Greenwich, radians.
  Observer(double latitude, double longitude);

  const Vector3& Position() const { return position_; }
  // Unit vectors: the geodetic vertical, and due east on the horizon.
  const Vector3& Up() const { return up_; }
  const Vector3& East() const { return east_; }
  // From the place to what is at that geocentric vector.
  Vector3 Topocentric(const Vector3& geocentric) const { return geocentric - position_; }
  // The direction of a vector against the geodetic vertical.
  Horizontal DirectionOf(const Vector3& vector) const;

 private:
  Vector3 position_;
  Vector3 up_;
  Vector3 east_;
  Vector3 north_;
};

}  // namespace tarnwick
