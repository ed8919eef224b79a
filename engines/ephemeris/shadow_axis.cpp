#include "engines/ephemeris/shadow_axis.h"

#include <cmath>

namespace tarnwick {

double SunRadius() {
  static const double radius = std::sin(kSunSemiDiameter) * kEarthRadiiPerAu;
  return radius;
}

MovingVector ShadowAxisFoot(const MoonAndSunVectors& places) {
  const MovingVector& moon = places.moon;
  const MovingVector axis = Unit(places.sun - moon);
  const double height = Dot(moon.value, axis.value);
  const double height_rate = Dot(moon.rate, axis.value) + Dot(moon.value, axis.rate);
  return {moon.value - height * axis.value,
          moon.rate - height_rate * axis.value - height * axis.rate};
}

Shadow ShadowOf(const MoonAndSunVectors& places) {
  const Vector3& moon = places.moon.value;
  const Vector3 to_sun = places.sun.value - moon;
  const double distance = Length(to_sun);
  const Vector3 direction = 1 / distance * to_sun;
  const double height = Dot(moon, direction);

  const double penumbra_sine = (SunRadius() + kPenumbralMoonRadius) / distance;
  const double umbra_sine = (SunRadius() - kUmbralMoonRadius) / distance;
  return {{moon - height * direction, direction},
          {height + kPenumbralMoonRadius / penumbra_sine, penumbra_sine},
          {height - kUmbralMoonRadius / umbra_sine, umbra_sine}};
}

double RadiusAt(const Cone& cone, double zeta) {
  return (cone.vertex - zeta) * cone.sine / std::sqrt(1 - cone.sine * cone.sine);
}

}  // namespace tarnwick
