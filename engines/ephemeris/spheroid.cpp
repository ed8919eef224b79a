#include "engines/ephemeris/spheroid.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "engines/ephemeris/earth_frame.h"

namespace tarnwick {

Spheroid Spheroid::EarthAt(double ajd_tt) {
  const double obliquity = MeanObliquity(ajd_tt);
  return Spheroid({0, std::sin(obliquity), std::cos(obliquity)});
}

Vector3 Spheroid::Stretched(const Vector3& a) const {
  return a + (1 / kPolarRadius - 1) * Dot(a, pole_) * pole_;
}

Spheroid::Chord Spheroid::ChordOf(const Line& line) const {
  const Vector3 foot = Stretched(line.foot);
  const Vector3 direction = Stretched(line.direction);
  const double scale = Dot(direction, direction);
  const double middle = -Dot(foot, direction) / scale;
  const double excess = Dot(foot, foot) - middle * middle * scale - 1;
  return {excess, middle, middle + std::sqrt(std::max(0.0, -excess) / scale)};
}

double Spheroid::Support(const Vector3& normal) const {
  const double polar = Dot(normal, pole_);
  return std::sqrt(1 - kEccentricitySquared * polar * polar);
}

// The planes are told apart by the direction n, across the axis, in which they look. Newton's
// method on the slope of the gap as n turns; the curvature is that of a sphere's gap, so that each
// step leaves a hundredth of the error.
TangentPlane Spheroid::FarthestTangentPlane(const Line& axis, const Cone& cone) const {
  const double cosine = std::sqrt(1 - cone.sine * cone.sine);
  const auto normal = [&](const Vector3& n) { return cosine * n - cone.sine * axis.direction; };
  const double distance = Length(axis.foot);
  Vector3 n = 1 / distance * axis.foot;
  for (int i = 0; i < 6; ++i) {
    const Vector3 turn = Cross(axis.direction, n);
    const Vector3 now = normal(n);
    const double support_slope =
        -kEccentricitySquared * Dot(now, pole_) * Dot(turn, pole_) / Support(now);
    const double slope = Dot(turn, axis.foot) - support_slope;
    n = Unit(n + slope / distance * turn);
  }
  const Vector3 result = normal(n);
  const double plane = cosine * Dot(n, axis.foot) - cone.sine * cone.vertex;
  return {result, plane - Support(result)};
}

double Spheroid::HeightOf(const TangentPlane& plane, const Line& axis) const {
  const double polar = Dot(plane.normal, pole_);
  const Vector3 point = plane.normal - kEccentricitySquared * polar * pole_;
  return Dot(point, axis.direction) / Support(plane.normal);
}

}  // namespace tarnwick
