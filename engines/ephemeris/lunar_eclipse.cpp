// Eclipses of the Moon.
//
// The shadow is that of Danjon: a round one, larger than the bare geometry's because the atmosphere
// adds a hundredth to the Earth's radius as seen from the Moon. With the horizontal parallaxes p_m
// and p_s of Moon and Sun and the Sun's semi-diameter s_s, the radii of penumbra and umbra are
//   R_p = 1.01 p_m + p_s + s_s,   R_u = 1.01 p_m + p_s - s_s.
// The Moon's centre is sigma away from the antisolar point, and its semi-diameter is s_m.
// Everything else is a comparison of sigma with the sums and differences of these: the Moon enters
// the penumbra at sigma = R_p + s_m, the umbra at R_u + s_m, and lies wholly within the umbra from
// R_u - s_m.
//
// Sources: Danjon, "Les eclipses de Lune par la penombre en 1951", L'Astronomie 65; Meeus,
// Astronomical Algorithms, chapter 54; Explanatory Supplement to the Astronomical Almanac,
// chapter 8. Lengths are in equatorial Earth radii, angles in radians, times in days.
#include <cmath>

#include "engines/ephemeris/bounded_search.h"
#include "engines/ephemeris/eclipse.h"
#include "engines/ephemeris/moon_sun_track.h"
#include "engines/time_units.h"

namespace tarnwick {
namespace {

constexpr double kMoonRadius = 0.272488;
constexpr double kDanjonEnlargement = 1.01;
// No eclipse when the Moon's centre passes farther from the axis, in Earth radii: the penumbra
// reaches to 1.583 at most.
constexpr double kFarthestGamma = 1.7;

// Moon and shadow at one instant, as seen from the Earth's centre.
struct ShadowCircles {
  double sigma;
  double penumbra;
  double umbra;
  double moon;
};

// From the antisolar point to the Moon on the unit sphere.
MovingVector FromAntisolarPoint(const MoonAndSunVectors& places) {
  const MovingVector sun = Unit(places.sun);
  const MovingVector moon = Unit(places.moon);
  return {moon.value + sun.value, moon.rate + sun.rate};
}

bool MayMeetShadow(const MoonAndSunVectors& places) {
  const MovingVector chord = FromAntisolarPoint(places);
  const Vector3 shortest = chord.value + TimeToClosest(chord) * chord.rate;
  return Length(shortest) * Length(places.moon.value) < kFarthestGamma &&
         std::abs(TimeToClosest(chord)) < MoonSunTrack::kReach;
}

ShadowCircles CirclesOf(const MoonAndSunVectors& places) {
  const double moon_distance = Length(places.moon.value);
  const double sun_distance = Length(places.sun.value);
  const Vector3 chord = 1 / moon_distance * places.moon.value + 1 / sun_distance * places.sun.value;
  const double moon_parallax = std::asin(1 / moon_distance);
  const double sun_parallax = std::asin(1 / sun_distance);
  const double sun = kSunSemiDiameter * kEarthRadiiPerAu / sun_distance;
  const double shadow = kDanjonEnlargement * moon_parallax + sun_parallax;
  return {2 * std::asin(Length(chord) / 2), shadow + sun, shadow - sun,
          std::asin(kMoonRadius / moon_distance)};
}

// Magnitude in a shadow of that radius: the part of the Moon's diameter that it covers.
double Magnitude(const ShadowCircles& circles, double shadow) {
  return (shadow + circles.moon - circles.sigma) / (2 * circles.moon);
}

// Half the time, in minutes, between the two contacts at which the Moon's distance from the
// antisolar point equals what `limit` makes of the circles. It must lie within that limit at
// greatest eclipse.
template <class Limit>
double SemiDuration(const MoonSunTrack& track, double greatest, const Limit& limit) {
  const auto excess = [&](double offset) {
    const ShadowCircles circles = CirclesOf(track.At(offset));
    const double contact = limit(circles);
    return circles.sigma * circles.sigma - contact * contact;
  };
  const double first = RootBetween(excess, greatest, -MoonSunTrack::kReach);
  const double last = RootBetween(excess, greatest, MoonSunTrack::kReach);
  return (last - first) / 2 * kMinutesPerDay;
}

double Gamma(const MoonAndSunVectors& places, const ShadowCircles& circles) {
  const double north = FromAntisolarPoint(places).value.z;
  return std::copysign(Length(places.moon.value) * std::sin(circles.sigma), north);
}

}  // namespace

LunarMagnitudes LunarMagnitudesOf(const MoonAndSunVectors& places) {
  const ShadowCircles circles = CirclesOf(places);
  return {Magnitude(circles, circles.umbra), Magnitude(circles, circles.penumbra)};
}

Eclipse LunarEclipseNear(double full_moon, const MoonAndSun& positions) {
  const MoonAndSunVectors places = VectorsOf(positions);
  if (!MayMeetShadow(places)) return {};
  const MoonSunTrack track(full_moon, places);
  const double greatest = track.ClosestApproach(FromAntisolarPoint);
  const ShadowCircles circles = CirclesOf(track.At(greatest));

  Eclipse eclipse;
  eclipse.penumbral_magnitude = Magnitude(circles, circles.penumbra);
  if (eclipse.penumbral_magnitude <= 0) return {};
  eclipse.type = kPenumbralLunar;
  eclipse.greatest = full_moon + greatest;
  eclipse.gamma = Gamma(track.At(greatest), circles);
  eclipse.magnitude = Magnitude(circles, circles.umbra);
  eclipse.penumbral_minutes =
      SemiDuration(track, greatest, [](const ShadowCircles& c) { return c.penumbra + c.moon; });
  if (eclipse.magnitude <= 0) return eclipse;
  eclipse.type = kPartialLunar;
  eclipse.umbral_minutes =
      SemiDuration(track, greatest, [](const ShadowCircles& c) { return c.umbra + c.moon; });
  if (eclipse.magnitude < 1) return eclipse;
  eclipse.type = kTotalLunar;
  eclipse.total_minutes =
      SemiDuration(track, greatest, [](const ShadowCircles& c) { return c.umbra - c.moon; });
  return eclipse;
}

}  // namespace tarnwick
