// The Earth as an ellipsoid of revolution in the light of a far source.
//
// Unit: the equatorial radius. The polar radius is shorter by the flattening, 1/298.257 (the value
// of the International Astronomical Union, 1976). It does not matter how far the Earth has turned.
#pragma once

#include "engines/ephemeris/vector3.h"

namespace tarnwick {

// A straight line, by the point of it next to the Earth's centre and its direction. The point lies
// in the plane through the centre across the line: the fundamental plane if it is a shadow's axis.
// Heights are measured along the direction from that plane.
struct Line {
  Vector3 foot;
  Vector3 direction;  // a unit vector at right angles to foot
};

// A circular cone about a line, one nappe of it.
struct Cone {
  double vertex = 0;  // height
  double sine = 0;    // of the angle between the axis and the surface; positive for the nappe below
                      // the vertex, negative for the one above it, 0 for the line itself
};

// A plane that touches a cone all along, and how far off the ellipsoid is.
struct TangentPlane {
  Vector3 normal;  // a unit vector, away from the Earth
  double gap = 0;  // from the ellipsoid to the plane; negative when the plane cuts the ellipsoid
};

inline constexpr double kFlattening = 1 / 298.257;
inline constexpr double kPolarRadius = 1 - kFlattening;
inline constexpr double kEccentricitySquared = 1 - kPolarRadius * kPolarRadius;

class Spheroid {
 public:
  // The Earth in coordinates of the mean ecliptic and equinox of a date (AJD).
  static Spheroid EarthAt(double ajd_tt);
  // The Earth in the frame of EarthFrame, which turns with it.
  static constexpr Spheroid TurningEarth() { return Spheroid({0, 0, 1}); }

  // Where a line runs through the ellipsoid, once all is stretched along the polar axis until the
  // ellipsoid is a sphere of radius 1.
  struct Chord {
    double excess;  // distance from the centre, squared, less 1; negative when the line cuts
    double middle;  // height of the point halfway, where a line that only touches does so
    double upper;   // height of the place where the line comes out above; `middle` if it misses
  };
  Chord ChordOf(const Line& line) const;

  // Of the planes tangent to a cone, the one farthest from the ellipsoid. The cone, whose axis must
  // pass the ellipsoid by or near its limb, meets the ellipsoid when even that plane cuts it.
  TangentPlane FarthestTangentPlane(const Line& axis, const Cone& cone) const;

  // Height of the point of the surface at which that normal stands.
  double HeightOf(const TangentPlane& plane, const Line& axis) const;

 private:
  constexpr explicit Spheroid(const Vector3& pole) : pole_(pole) {}

  Vector3 Stretched(const Vector3& a) const;
  // Distance from the centre of the tangent plane with this unit normal.
  double Support(const Vector3& normal) const;

  Vector3 pole_;  // unit vector along the polar axis
};

}  // namespace tarnwick
