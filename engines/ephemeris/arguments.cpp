#include "engines/ephemeris/arguments.h"

#include <algorithm>
#include <cstdint>
#include <numbers>

#include "engines/time_units.h"

namespace tarnwick {
namespace {

constexpr double kSpanBegin = 550000.0;
constexpr double kSpanEnd = 3914990.0;
constexpr double kRadiansPerDegree = std::numbers::pi / 180;

using Polynomial = std::array<double, 9>;

constexpr auto kArguments = std::to_array<Polynomial>({
#include "engines/ephemeris/arguments.inc"
});
constexpr std::size_t kSunLongitude = 13;
constexpr std::size_t kEccentricity = 14;
constexpr std::size_t kP = 15;
constexpr std::size_t kQ = 16;
static_assert(kArguments.size() == kQ + 1);

// The value of a polynomial and its rate a century.
MovingAngle Evaluate(const Polynomial& c, double t) {
  double value = 0;
  double rate = 0;
  for (std::size_t i = c.size(); i-- > 0;) {
    rate = rate * t + value;
    value = value * t + c[i];
  }
  return {value, rate};
}

double Centuries(double ajd_tt) { return (ajd_tt - kJ2000) / kDaysPerCentury; }

// The mean longitudes of the planets go on at a steady rate.
constexpr bool IsPlanet(std::size_t argument) {
  return argument > kMoonLongitude && argument < kAngles;
}

// Degrees and degrees a century; along the tangent outside the span.
MovingAngle Continue(std::size_t argument, double ajd_tt) {
  const Polynomial& c = kArguments[argument];
  if (IsPlanet(argument)) return {c[0] + c[1] * Centuries(ajd_tt), c[1]};
  const double held = HeldCenturies(ajd_tt);
  MovingAngle angle = Evaluate(c, held);
  angle.value += angle.rate * (Centuries(ajd_tt) - held);
  return angle;
}

// By way of an integer, since not every processor has an instruction for std::floor.
double ReducedRadians(double degrees) {
  const double turns = degrees * (1.0 / 360);
  const auto whole = static_cast<double>(static_cast<std::int64_t>(turns));
  const double begun = whole - (turns < whole ? 1 : 0);
  return (degrees - 360 * begun) * kRadiansPerDegree;
}

MovingAngle AngleAt(std::size_t argument, double ajd_tt) {
  const MovingAngle degrees = Continue(argument, ajd_tt);
  return {ReducedRadians(degrees.value), degrees.rate * kRadiansPerDegree / kDaysPerCentury};
}

}  // namespace

double HeldCenturies(double ajd_tt) { return Centuries(std::clamp(ajd_tt, kSpanBegin, kSpanEnd)); }

Arguments ArgumentsAt(double ajd_tt) {
  Arguments arguments;
  for (std::size_t i = 0; i < kAngles; ++i) arguments.angles[i] = AngleAt(i, ajd_tt);
  arguments.sun_longitude = AngleAt(kSunLongitude, ajd_tt);
  const double held = HeldCenturies(ajd_tt);
  arguments.eccentricity = Evaluate(kArguments[kEccentricity], held).value;
  arguments.p = Evaluate(kArguments[kP], held).value * kRadiansPerArcsecond;
  arguments.q = Evaluate(kArguments[kQ], held).value * kRadiansPerArcsecond;
  arguments.x = held / 50;
  return arguments;
}

// Newton's method on a function that is nearly a straight line: it converges at once.
double MeanElongationInstant(double turns) {
  const Polynomial& c = kArguments[kD];
  double ajd_tt = kJ2000 + (360 * turns - c[0]) / c[1] * kDaysPerCentury;
  for (int i = 0; i < 3; ++i) {
    const MovingAngle degrees = Continue(kD, ajd_tt);
    ajd_tt += (360 * turns - degrees.value) / degrees.rate * kDaysPerCentury;
  }
  return ajd_tt;
}

double MeanArgumentOfLatitude(double ajd_tt) { return AngleAt(kF, ajd_tt).value; }

}  // namespace tarnwick
