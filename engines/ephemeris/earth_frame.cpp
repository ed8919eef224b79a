#include "engines/ephemeris/earth_frame.h"

#include <cmath>
#include <cstddef>
#include <numbers>

#include "engines/ephemeris/arguments.h"
#include "engines/time_units.h"

namespace tarnwick {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;

// By powers of ten thousand Julian years from J2000, arcseconds.
constexpr double kObliquity[] = {84381.448, -4680.93, -1.55, 1999.25, -51.38, -249.67,
                                 -39.05,    7.12,     27.87, 5.79,    2.45};

// Accumulated precession in right ascension by powers of 50 Julian centuries from J2000,
// arcseconds.
constexpr double kPrecession[] = {0.014506, 230608.017541, 3478.378679, 4.059144, -177.999464,
                                  5.97113,  0.544829,      -2.213891,   0.285413, 0.210142};
constexpr double kCenturiesOfPrecession = 50;

// Turns a day beyond a whole one, and the turn begun at J2000.
constexpr double kExcessRotation = 0.00273781191135448;
constexpr double kRotationAtJ2000 = 0.7790572732640;

// Radians.
template <std::size_t kSize>
double PolynomialOfArcseconds(const double (&c)[kSize], double x) {
  double arcseconds = 0;
  for (std::size_t i = kSize; i-- > 0;) arcseconds = arcseconds * x + c[i];
  return arcseconds * kRadiansPerArcsecond;
}

double EarthRotationAngle(double ajd_ut) {
  const double days = ajd_ut - kJ2000;
  const double turns = days - std::floor(days) + kRotationAtJ2000 + kExcessRotation * days;
  return (turns - std::floor(turns)) * kTurn;
}

double SiderealTime(double ajd_ut, double ajd_tt, double nutation, double true_obliquity) {
  const double precession =
      PolynomialOfArcseconds(kPrecession, HeldCenturies(ajd_tt) / kCenturiesOfPrecession);
  const double angle =
      EarthRotationAngle(ajd_ut) + precession + nutation * std::cos(true_obliquity);
  return angle - kTurn * std::floor(angle / kTurn);
}

}  // namespace

double MeanObliquity(double ajd_tt) {
  return PolynomialOfArcseconds(kObliquity, HeldCenturies(ajd_tt) / 100);
}

Nutation NutationAt(double ajd_tt) {
  const Arguments arguments = ArgumentsAt(ajd_tt);
  const double moon = arguments.angles[kMoonLongitude].value;
  const double node = moon - arguments.angles[kF].value;
  const double sun = arguments.sun_longitude.value;
  const double longitude = -17.20 * std::sin(node) - 1.32 * std::sin(2 * sun) -
                           0.23 * std::sin(2 * moon) + 0.21 * std::sin(2 * node);
  const double obliquity = 9.20 * std::cos(node) + 0.57 * std::cos(2 * sun) +
                           0.10 * std::cos(2 * moon) - 0.09 * std::cos(2 * node);
  return {longitude * kRadiansPerArcsecond, obliquity * kRadiansPerArcsecond};
}

double ApparentSiderealTime(double ajd_ut, double ajd_tt) {
  const auto [nutation, in_obliquity] = NutationAt(ajd_tt);
  return SiderealTime(ajd_ut, ajd_tt, nutation, MeanObliquity(ajd_tt) + in_obliquity);
}

// The rows of the matrix: nutation in longitude about the pole of the ecliptic, the obliquity about
// the equinox, sidereal time about the pole of the equator.
EarthFrame::EarthFrame(double ajd_tt, double delta_t) {
  const auto [nutation, in_obliquity] = NutationAt(ajd_tt);
  const double obliquity = MeanObliquity(ajd_tt) + in_obliquity;
  const double sidereal_time = SiderealTime(ajd_tt - delta_t, ajd_tt, nutation, obliquity);
  // Seen from the mean equinox, the true one is at -nutation.
  const Vector3 equinox{std::cos(nutation), -std::sin(nutation), 0};
  const Vector3 along{std::sin(nutation), std::cos(nutation), 0};
  const Vector3 ecliptic_pole{0, 0, 1};
  z_ = std::sin(obliquity) * along + std::cos(obliquity) * ecliptic_pole;
  const Vector3 east = std::cos(obliquity) * along - std::sin(obliquity) * ecliptic_pole;
  x_ = std::cos(sidereal_time) * equinox + std::sin(sidereal_time) * east;
  y_ = std::cos(sidereal_time) * east - std::sin(sidereal_time) * equinox;
}

}  // namespace tarnwick
