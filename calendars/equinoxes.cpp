#include "calendars/equinoxes.h"

#include <cmath>
#include <cstddef>
#include <numbers>

#include "engines/time_units.h"

namespace tarnwick {
namespace {

constexpr double kRadiansPerDegree = std::numbers::pi / 180;

// Mean instants by powers of Y, a row a season. Table 27.A, Y = year / 1000, for years below 1000.
constexpr double kEarly[4][5] = {
    {1721139.29189, 365242.13740, 0.06134, 0.00111, -0.00071},
    {1721233.25401, 365241.72562, -0.05323, 0.00907, 0.00025},
    {1721325.70455, 365242.49558, -0.11677, -0.00297, 0.00074},
    {1721414.39987, 365242.88257, -0.00769, -0.00933, -0.00006},
};
// Table 27.B, Y = (year - 2000) / 1000.
constexpr double kLate[4][5] = {
    {2451623.80984, 365242.37404, 0.05169, -0.00411, -0.00057},
    {2451716.56767, 365241.62603, 0.00325, 0.00888, -0.00030},
    {2451810.21715, 365242.01767, -0.11575, 0.00337, 0.00078},
    {2451900.05952, 365242.74049, -0.06223, -0.00823, 0.00032},
};

// Table 27.C: A cos(B + C T), A in 0.00001 day, B in degrees, C in degrees a century.
struct PeriodicTerm {
  double a;
  double b;
  double c;
};
constexpr PeriodicTerm kTerms[] = {
    {485, 324.96, 1934.136},  {203, 337.23, 32964.467}, {199, 342.08, 20.186},
    {182, 27.85, 445267.112}, {156, 73.14, 45036.886},  {136, 171.52, 22518.443},
    {77, 222.54, 65928.934},  {74, 296.72, 3034.906},   {70, 243.58, 9037.513},
    {58, 119.81, 33718.147},  {52, 297.17, 150.678},    {50, 21.02, 2281.226},
    {45, 247.54, 29929.562},  {44, 325.15, 31555.956},  {29, 60.93, 4443.417},
    {18, 155.12, 67555.328},  {17, 288.79, 4562.452},   {16, 198.04, 62894.029},
    {14, 199.76, 31436.921},  {12, 95.39, 14577.848},   {12, 287.11, 31931.756},
    {12, 320.81, 34777.259},  {9, 227.73, 1222.114},    {8, 15.45, 16859.074},
};

double MeanInstant(std::int32_t year, Season season) {
  const auto row = static_cast<std::size_t>(season);
  const double(&c)[5] = year < 1000 ? kEarly[row] : kLate[row];
  const double y = (year < 1000 ? year : year - 2000.0) / 1000;
  return c[0] + y * (c[1] + y * (c[2] + y * (c[3] + y * c[4])));
}

double CosDegrees(double degrees) {
  return std::cos(std::remainder(degrees, 360) * kRadiansPerDegree);
}

}  // namespace

TerrestrialTime SeasonInstant(std::int32_t year, Season season) {
  const double mean = MeanInstant(year, season);
  const double t = (mean - kJ2000) / kDaysPerCentury;
  const double w = 35999.373 * t - 2.47;
  const double longitude_rate = 1 + 0.0334 * CosDegrees(w) + 0.0007 * CosDegrees(2 * w);
  double sum = 0;
  for (const PeriodicTerm& term : kTerms) sum += term.a * CosDegrees(term.b + term.c * t);
  return TerrestrialTime(mean + 0.00001 * sum / longitude_rate);
}

}  // namespace tarnwick
