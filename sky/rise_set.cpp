#include "sky/rise_set.h"

#include <cmath>
#include <cstddef>
#include <numbers>

#include "engines/ephemeris/bounded_search.h"
#include "engines/ephemeris/shadow_axis.h"
#include "sky/visibility.h"

namespace tarnwick {
namespace {

constexpr double kTurn = 2 * std::numbers::pi;
constexpr double kHalfDay = 0.5;
constexpr double kSunRadius = kSunSemiDiameter * kEarthRadiiPerAu;

// Two extremes of the altitude can be closer than an hour only near a pole, where the drift of the
// declination almost keeps pace with the rotation; between such two the altitude changes by 5".
constexpr int kSteps = 24;

// How far the Earth turns against the equinox of date in a day about an instant, radians.
double TurningAt(double ajd_ut, double ajd_tt) {
  const double before = ApparentSiderealTime(ajd_ut - kHalfDay, ajd_tt - kHalfDay);
  const double after = ApparentSiderealTime(ajd_ut + kHalfDay, ajd_tt + kHalfDay);
  return kTurn + std::remainder(after - before, kTurn);
}

// Altitude of a body over that at which it rises and sets.
double Excess(const Vector3& topocentric, const Observer& observer, double radius) {
  const double distance = Length(topocentric);
  return HeightOfUpperLimb(std::asin(Dot(topocentric, observer.Up()) / distance),
                           std::asin(radius / distance));
}

// Rate of the sine of the altitude; 0 at its extremes. The change of the semi-diameter is too small
// to shift them.
double Climb(const MovingVector& topocentric, const Observer& observer) {
  return Dot(Unit(topocentric).rate, observer.Up());
}

// In [-pi, pi], growing westwards.
double HourAngle(const Vector3& place, const Observer& observer) {
  const Vector3 east = observer.East();
  const Vector3 meridian{east.y, -east.x, 0};
  return std::atan2(-Dot(place, east), Dot(place, meridian));
}

// The ends of the day and the extremes of the altitude, in order: between two of them the altitude
// only rises or only falls, so that no event is missed however short the body is up or down.
template <class Function>
std::vector<double> ExtremesOfDay(const Function& climb) {
  std::vector<double> extremes{-kHalfDay};
  double begin = -kHalfDay;
  bool rises = climb(begin) > 0;
  for (int i = 1; i <= kSteps; ++i) {
    const double end = static_cast<double>(i) / kSteps - kHalfDay;
    const bool still_rises = climb(end) > 0;
    if (still_rises != rises) {
      extremes.push_back(rises ? RootBetween(climb, end, begin) : RootBetween(climb, begin, end));
    }
    begin = end;
    rises = still_rises;
  }
  extremes.push_back(kHalfDay);
  return extremes;
}

}  // namespace

SkyDay::SkyDay(UniversalTime start, double delta_t)
    : middle_(start + kHalfDay),
      track_(middle_.days + delta_t, VectorsOf(PositionsAt(middle_.days + delta_t)), kHalfDay),
      frame_(middle_.days + delta_t, delta_t),
      turning_(TurningAt(middle_.days, middle_.days + delta_t)) {}

// In a day nutation and precession of the pole itself stay below 0.05": only the turning counts.
MovingVector SkyDay::PlaceOf(Body body, double offset) const {
  const MovingVector ecliptic = body == Body::kSun ? track_.SunAt(offset) : track_.MoonAt(offset);
  const double sine = std::sin(turning_ * offset);
  const double cosine = std::cos(turning_ * offset);
  const auto turned = [&](const Vector3& a) {
    const Vector3 b = frame_.FromEcliptic(a);
    return Vector3{cosine * b.x + sine * b.y, cosine * b.y - sine * b.x, b.z};
  };
  const Vector3 value = turned(ecliptic.value);
  return {value, turned(ecliptic.rate) + turning_ * Vector3{value.y, -value.x, 0}};
}

std::vector<double> SkyDay::Crossings(Body body, bool upwards, const Observer& observer) const {
  const double radius = body == Body::kSun ? kSunRadius : kPenumbralMoonRadius;
  const auto topocentric = [&](double offset) {
    const MovingVector place = PlaceOf(body, offset);
    return MovingVector{observer.Topocentric(place.value), place.rate};
  };
  const auto excess = [&](double offset) {
    return Excess(topocentric(offset).value, observer, radius);
  };
  const auto climb = [&](double offset) { return Climb(topocentric(offset), observer); };
  const std::vector<double> extremes = ExtremesOfDay(climb);
  std::vector<double> crossings;
  for (std::size_t i = 1; i < extremes.size(); ++i) {
    const double below = upwards ? extremes[i - 1] : extremes[i];
    const double above = upwards ? extremes[i] : extremes[i - 1];
    if (excess(below) <= 0 && excess(above) > 0) {
      crossings.push_back(RootBetween(excess, below, above));
    }
  }
  return crossings;
}

// The hour angle grows by a turn a day and, for the Moon, up to a twentieth less: each step leaves
// that part of the error. A day of the Sun can be shorter than 24 hours, so that there may be two.
std::vector<double> SkyDay::Transits(Body body, const Observer& observer) const {
  const auto turns = [&](double offset) {
    return HourAngle(PlaceOf(body, offset).value, observer) / kTurn;
  };
  std::vector<double> transits;
  double from = -kHalfDay;
  for (int count = 0; count < 2 && from < kHalfDay; ++count) {
    const double turned = turns(from);
    double offset = from - turned + (turned > 0 ? 1 : 0);
    for (int i = 0; i < 7; ++i) offset -= turns(offset);
    if (offset <= kHalfDay) transits.push_back(offset);
    from = offset + kHalfDay;
  }
  return transits;
}

std::vector<UniversalTime> SkyDay::Find(Body body, SkyEvent event, const Observer& observer) const {
  const std::vector<double> offsets = event == SkyEvent::kTransit
                                          ? Transits(body, observer)
                                          : Crossings(body, event == SkyEvent::kRising, observer);
  std::vector<UniversalTime> instants;
  instants.reserve(offsets.size());
  for (const double offset : offsets) instants.push_back(middle_ + offset);
  return instants;
}

std::optional<UniversalTime> NextEvent(Body body, SkyEvent event, const Observer& observer,
                                       UniversalTime start, double delta_t) {
  const std::vector<UniversalTime> events = SkyDay(start, delta_t).Find(body, event, observer);
  if (events.empty()) return std::nullopt;
  return events.front();
}

}  // namespace tarnwick
