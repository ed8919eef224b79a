#include "engines/ephemeris/delta_t.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace tarnwick {
namespace {

struct Knot {
  double year;
  double seconds;
};

constexpr Knot kKnots[] = {
#include "engines/ephemeris/delta_t.inc"
};
constexpr std::size_t kCount = std::size(kKnots);

constexpr double kParabolaYear = 1825;
constexpr double kCurvature = 32.5;                // seconds a century squared
constexpr double kFirstSlope = 65 * -25.45 / 100;  // seconds a year, at the first knot
constexpr double kLastSlope = 0.05;                // and at the last
constexpr double kJoinYear = 2827;
constexpr double kFarConstant = -320;

constexpr double Parabola(double year, double constant) {
  const double u = (year - kParabolaYear) / 100;
  return constant + kCurvature * u * u;
}

constexpr double kEarlyConstant = kKnots[0].seconds - Parabola(kKnots[0].year, 0);

// The standard error outside the observations of the last centuries.
constexpr double RuleOfThumb(double year) {
  const double u = (year - 1820) / 100;
  return 0.8 * u * u;
}

constexpr Knot kErrors[] = {{1300, RuleOfThumb(1300)},
                            {1600, 20},
                            {1700, 5},
                            {1800, 1},
                            {1900, 0.1},
                            {2000, 0.01},
                            {2025, 0.01},
                            {2100, 10},
                            {2200, RuleOfThumb(2200)}};

// The cubic with these values and slopes at the ends of an interval.
double Hermite(double year, const Knot& begin, double begin_slope, const Knot& end,
               double end_slope) {
  const double length = end.year - begin.year;
  const double s = (year - begin.year) / length;
  const double r = 1 - s;
  return r * r * ((1 + 2 * s) * begin.seconds + s * length * begin_slope) +
         s * s * ((1 + 2 * r) * end.seconds - r * length * end_slope);
}

// The slopes at the knots of the spline whose second derivative has no jump: a tridiagonal system,
// solved by elimination and substitution.
std::array<double, kCount> SplineSlopes() {
  std::array<double, kCount> slopes{};
  std::array<double, kCount> factor{};
  slopes.front() = kFirstSlope;
  slopes.back() = kLastSlope;
  for (std::size_t i = 1; i + 1 < kCount; ++i) {
    const double before = kKnots[i].year - kKnots[i - 1].year;
    const double after = kKnots[i + 1].year - kKnots[i].year;
    const double before_slope = (kKnots[i].seconds - kKnots[i - 1].seconds) / before;
    const double after_slope = (kKnots[i + 1].seconds - kKnots[i].seconds) / after;
    // m[i-1] / before + 2 (1 / before + 1 / after) m[i] + m[i+1] / after = right-hand side
    const double pivot = 2 / before + 2 / after - factor[i - 1] / before;
    factor[i] = 1 / after / pivot;
    slopes[i] =
        (3 * (before_slope / before + after_slope / after) - slopes[i - 1] / before) / pivot;
  }
  for (std::size_t i = kCount - 1; i-- > 1;) slopes[i] -= factor[i] * slopes[i + 1];
  return slopes;
}

// The first knot after a year, or the end.
template <std::size_t count>
const Knot* KnotAfter(const Knot (&knots)[count], double year) {
  return std::upper_bound(std::begin(knots), std::end(knots), year,
                          [](double wanted, const Knot& knot) { return wanted < knot.year; });
}

double Spline(double year) {
  static const std::array<double, kCount> slopes = SplineSlopes();
  const auto end = std::min(static_cast<std::size_t>(KnotAfter(kKnots, year) - kKnots), kCount - 1);
  return Hermite(year, kKnots[end - 1], slopes[end - 1], kKnots[end], slopes[end]);
}

}  // namespace

double DeltaTSeconds(double year) {
  if (year < kKnots[0].year) return Parabola(year, kEarlyConstant);
  if (year >= kJoinYear) return Parabola(year, kFarConstant);
  if (year <= kKnots[kCount - 1].year) return Spline(year);
  const Knot join{kJoinYear, Parabola(kJoinYear, kFarConstant)};
  const double join_slope = 2 * kCurvature * (kJoinYear - kParabolaYear) / 100 / 100;
  return Hermite(year, kKnots[kCount - 1], kLastSlope, join, join_slope);
}

double DeltaTError(double year) {
  const Knot* end = KnotAfter(kErrors, year);
  if (end == std::begin(kErrors) || end == std::end(kErrors)) return RuleOfThumb(year);
  const Knot& begin = *(end - 1);
  const double share = (year - begin.year) / (end->year - begin.year);
  return begin.seconds + share * (end->seconds - begin.seconds);
}

}  // namespace tarnwick
