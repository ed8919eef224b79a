#include "engines/ephemeris/positions.h"

#include <cmath>
#include <numbers>
#include <span>

#include "engines/ephemeris/series.h"

namespace tarnwick {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kKmPerSunUnit = 1e-8 * kKmPerAu;

constexpr SeriesTerm kMoonLongitudeTerms[] = {
#include "engines/ephemeris/moon_longitude.inc"
};
constexpr SeriesTerm kMoonLatitudeTerms[] = {
#include "engines/ephemeris/moon_latitude.inc"
};
constexpr SeriesTerm kMoonDistanceTerms[] = {
#include "engines/ephemeris/moon_distance.inc"
};
constexpr SeriesTerm kSunLongitudeTerms[] = {
#include "engines/ephemeris/sun_longitude.inc"
};
constexpr SeriesTerm kSunLatitudeTerms[] = {
#include "engines/ephemeris/sun_latitude.inc"
};
constexpr SeriesTerm kSunDistanceTerms[] = {
#include "engines/ephemeris/sun_distance.inc"
};

enum Series {
  kMoonLongitudeSeries,
  kMoonLatitude,
  kMoonDistance,
  kSunLongitude,
  kSunLatitude,
  kSunDistance
};
// What is large stands in tools/ephemeris/make_tables.py too.
constexpr SeriesTable kTables[] = {{kMoonLongitudeTerms, 2}, {kMoonLatitudeTerms, 2},
                                   {kMoonDistanceTerms, 50}, {kSunLongitudeTerms, 2},
                                   {kSunLatitudeTerms, 2},   {kSunDistanceTerms, 100}};
constexpr PhasorProduct kProducts[] = {
#include "engines/ephemeris/products.inc"
};

enum RoughSeries { kRoughMoon, kRoughSun };
constexpr SeriesTable kRoughTables[] = {{std::span(kMoonLongitudeTerms).first(80)},
                                        {std::span(kSunLongitudeTerms).first(10)}};
constexpr PhasorProduct kRoughProducts[] = {
#include "engines/ephemeris/rough_products.inc"
};

double Reduced(double radians) { return radians - kTurn * std::floor(radians / kTurn); }

// The mean longitude and the sum of a series in arcseconds.
MovingAngle Longitude(const MovingAngle& mean, const SeriesValue& series) {
  return {mean.value + series.value * kRadiansPerArcsecond,
          mean.rate + series.rate * kRadiansPerArcsecond};
}

MovingAngle Latitude(const SeriesValue& series) {
  return {series.value * kRadiansPerArcsecond, series.rate * kRadiansPerArcsecond};
}

// The change of latitude that the tilt of the ecliptic of date makes at longitude a, and how fast
// that change goes with the longitude.
struct Tilt {
  double latitude;
  double slope;
};
Tilt TiltAt(const Arguments& arguments, double a) {
  const double sin_a = std::sin(a);
  const double cos_a = std::cos(a);
  return {arguments.p * sin_a + arguments.q * cos_a, arguments.p * cos_a - arguments.q * sin_a};
}

void Tip(MovingAngle& latitude, const Tilt& tilt, double longitude_rate) {
  latitude.value += tilt.latitude;
  latitude.rate += tilt.slope * longitude_rate;
}

Position MoonAt(const Arguments& arguments, const SeriesSet::Values& series) {
  const MovingAngle& mean = arguments.angles[kMoonLongitude];
  const MovingAngle a = Longitude(mean, series[kMoonLongitudeSeries]);
  const MovingAngle b = Latitude(series[kMoonLatitude]);
  const Tilt tilt = TiltAt(arguments, a.value);
  const double tan_b = std::tan(b.value);
  const double shift_rate =
      (1 + tan_b * tan_b) * b.rate * tilt.slope - tan_b * tilt.latitude * a.rate;

  Position moon;
  moon.longitude = {Reduced(a.value - tan_b * tilt.slope), a.rate - shift_rate};
  moon.latitude = b;
  Tip(moon.latitude, tilt, a.rate);
  moon.distance = series[kMoonDistance].value;
  moon.distance_rate = series[kMoonDistance].rate;
  return moon;
}

Position SunAt(const Arguments& arguments, const SeriesSet::Values& series) {
  Position sun;
  sun.longitude = Longitude(arguments.sun_longitude, series[kSunLongitude]);
  sun.latitude = Latitude(series[kSunLatitude]);
  Tip(sun.latitude, TiltAt(arguments, sun.longitude.value), sun.longitude.rate);
  sun.longitude.value = Reduced(sun.longitude.value);
  sun.distance = series[kSunDistance].value * kKmPerSunUnit;
  sun.distance_rate = series[kSunDistance].rate * kKmPerSunUnit;
  return sun;
}

}  // namespace

MoonAndSun PositionsAt(double ajd_tt) {
  static const SeriesSet series(kTables, kProducts);
  const Arguments arguments = ArgumentsAt(ajd_tt);
  const SeriesSet::Values values = series.Evaluate(arguments);
  return {MoonAt(arguments, values), SunAt(arguments, values)};
}

MovingAngle RoughElongationAt(double ajd_tt) {
  static const SeriesSet series(kRoughTables, kRoughProducts);
  const Arguments arguments = ArgumentsAt(ajd_tt);
  const SeriesSet::Values values = series.Evaluate(arguments);
  const MovingAngle moon = Longitude(arguments.angles[kMoonLongitude], values[kRoughMoon]);
  const MovingAngle sun = Longitude(arguments.sun_longitude, values[kRoughSun]);
  return {Reduced(moon.value - sun.value), moon.rate - sun.rate};
}

}  // namespace tarnwick
