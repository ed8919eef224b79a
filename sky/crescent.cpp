#include "sky/crescent.h"

#include <cmath>
#include <numbers>
#include <vector>

#include "engines/ephemeris/earth_frame.h"
#include "engines/ephemeris/moon_sun_track.h"
#include "engines/phases.h"
#include "moon/syzyg.h"
#include "sky/rise_set.h"

namespace tarnwick {
namespace {

constexpr double kReach = 4.3;  // days from the conjunction
constexpr double kHalfDay = 0.5;
constexpr double kBestPart = 4.0 / 9;  // of the lag
constexpr double kMoonRadius = 0.27245;
constexpr double kRadiansPerArcminute = 60 * kRadiansPerArcsecond;

// Evenings follow the conjunction, mornings precede it; all else is the same.
struct Side {
  SkyEvent event;
  int direction;  // of time, away from the conjunction
};
constexpr Side kEvenings{SkyEvent::kSetting, 1};
constexpr Side kMornings{SkyEvent::kRising, -1};

double AngleBetween(const Vector3& a, const Vector3& b) {
  return std::atan2(Length(Cross(a, b)), Dot(a, b));
}

// Yallop's W': from the semi-diameter as seen from the place.
double Width(double moon_distance, double moon_altitude, double arcl) {
  const double sin_parallax = 1 / moon_distance;
  const double semi_diameter =
      kMoonRadius * std::asin(sin_parallax) * (1 + std::sin(moon_altitude) * sin_parallax);
  return semi_diameter / kRadiansPerArcminute * (1 - std::cos(arcl));
}

double YallopsQ(double arcv, double w) {
  const double arcv_degrees = arcv * 180 / std::numbers::pi;
  return (arcv_degrees - (11.8371 - w * (6.3226 - w * (0.7319 - w * 0.1018)))) / 10;
}

CrescentQuantities QuantitiesAt(UniversalTime best, const Observer& observer, double delta_t) {
  const double ajd_tt = best.days + delta_t;
  const EarthFrame frame(ajd_tt, delta_t);
  const MoonAndSunVectors places = VectorsOf(PositionsAt(ajd_tt));
  const Vector3& moon = places.moon.value;
  const Vector3& sun = places.sun.value;
  const Horizontal moon_direction = observer.DirectionOf(frame.FromEcliptic(moon));
  const Horizontal sun_direction = observer.DirectionOf(frame.FromEcliptic(sun));
  CrescentQuantities quantities;
  quantities.best = best;
  quantities.arcl = AngleBetween(moon, sun);
  quantities.arcv = moon_direction.altitude - sun_direction.altitude;
  quantities.daz =
      std::remainder(sun_direction.azimuth - moon_direction.azimuth, 2 * std::numbers::pi);
  quantities.width = Width(Length(moon), moon_direction.altitude, quantities.arcl);
  quantities.q = YallopsQ(quantities.arcv, quantities.width);
  return quantities;
}

// The Moon's event nearest to the Sun's.
std::optional<UniversalTime> NearestMoon(UniversalTime sun, SkyEvent event,
                                         const Observer& observer, double delta_t) {
  std::optional<UniversalTime> nearest;
  for (const UniversalTime moon :
       SkyDay(sun - kHalfDay, delta_t).Find(Body::kMoon, event, observer)) {
    if (!nearest || std::abs(moon - sun) < std::abs(*nearest - sun)) nearest = moon;
  }
  return nearest;
}

Crescent CrescentAt(UniversalTime sun, const Side& side, const Observer& observer, double delta_t) {
  Crescent crescent;
  crescent.sun = sun;
  crescent.moon = NearestMoon(sun, side.event, observer, delta_t);
  if (!crescent.moon) return crescent;
  const double delay = *crescent.moon - sun;
  if (delay * side.direction <= 0) return crescent;
  crescent.quantities = QuantitiesAt(sun + kBestPart * delay, observer, delta_t);
  return crescent;
}

// The Sun's event nearest to an instant within the day that leads from there away from the
// conjunction.
std::optional<UniversalTime> FindSun(UniversalTime from, const Side& side, const Observer& observer,
                                     double delta_t) {
  const UniversalTime start = side.direction > 0 ? from : from - 1;
  const std::vector<UniversalTime> events =
      SkyDay(start, delta_t).Find(Body::kSun, side.event, observer);
  if (events.empty()) return std::nullopt;
  return side.direction > 0 ? events.front() : events.back();
}

// One event of the Sun is more than half a day after the other.
Crescents FindCrescents(std::int32_t lunation, const Side& side, const Observer& observer,
                        double delta_t) {
  const UniversalTime conjunction(Syzygy(lunation, kNewMoon).days - delta_t);
  Crescents crescents;
  std::size_t count = 0;
  UniversalTime from = conjunction;
  while (count < crescents.size() && std::abs(from - conjunction) < kReach) {
    const std::optional<UniversalTime> sun = FindSun(from, side, observer, delta_t);
    if (sun && std::abs(*sun - conjunction) > kReach) break;
    if (sun) crescents[count++] = CrescentAt(*sun, side, observer, delta_t);
    from = sun ? *sun + side.direction * kHalfDay : from + side.direction;
  }
  return crescents;
}

}  // namespace

std::optional<char> Crescent::Class() const {
  if (!moon) return std::nullopt;
  if (!quantities) return 'F';
  constexpr std::array<double, 5> kLimits{0.216, -0.014, -0.160, -0.232, -0.293};
  char name = 'A';
  for (const double limit : kLimits) {
    if (quantities->q > limit) break;
    ++name;
  }
  return name;
}

Crescents EveningsAfter(std::int32_t lunation, const Observer& observer, double delta_t) {
  return FindCrescents(lunation, kEvenings, observer, delta_t);
}

Crescents MorningsBefore(std::int32_t lunation, const Observer& observer, double delta_t) {
  return FindCrescents(lunation, kMornings, observer, delta_t);
}

NamedCrescents NameCrescents(const Crescents& crescents) {
  NamedCrescents named;
  for (std::size_t i = 0; i < crescents.size() && !named.seen; ++i) {
    const char visibility = crescents[i].Class().value_or('F');
    if (visibility == 'A' || visibility == 'B') named.seen = i;
    if (visibility == 'C' && !named.maybe_seen) named.maybe_seen = i;
  }
  return named;
}

std::optional<std::size_t> TellingCrescent(const Crescents& crescents) {
  const NamedCrescents named = NameCrescents(crescents);
  return named.seen ? named.seen : named.maybe_seen;
}

std::string_view CrescentClassText(char visibility) {
  constexpr std::array<std::string_view, 6> kMeanings{
      "easily visible",        "visible under perfect conditions", "perhaps with optical aid",
      "only with optical aid", "not visible with a telescope",     "not visible",
  };
  return kMeanings[static_cast<std::size_t>(visibility - 'A')];
}

}  // namespace tarnwick
