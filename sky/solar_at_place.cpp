#include "sky/solar_at_place.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <tuple>

#include "engines/ephemeris/arguments.h"
#include "engines/ephemeris/shadow_axis.h"
#include "engines/ephemeris/vector3.h"
#include "sky/visibility.h"

namespace tarnwick {
namespace {

constexpr double kReach = MoonSunTrack::kReach;
// Steps in time below this are not worth another, days: a tenth of a millisecond.
constexpr double kNegligible = 1e-9;

// The two discs at an instant.
struct Discs {
  MovingVector chord;  // from the Sun's centre to the Moon's on the unit sphere
  MovingAngle sun;     // semi-diameters, radians, and their rates a day
  MovingAngle moon;
  MovingAngle moon_valleys;

  double Separation() const { return 2 * std::asin(Length(chord.value) / 2); }
  // The distance of the centres at the outer contacts, and, negative if total, at the inner ones.
  MovingAngle Outer() const { return {sun.value + moon.value, sun.rate + moon.rate}; }
  MovingAngle Inner() const {
    return {sun.value - moon_valleys.value, sun.rate - moon_valleys.rate};
  }
};

// The semi-diameter of a ball. It is small enough for its tangent to be its sine.
MovingAngle SemiDiameter(double radius, const MovingVector& from_place) {
  const double squared = Dot(from_place.value, from_place.value);
  const double angle = std::asin(radius / std::sqrt(squared));
  return {angle, -angle * Dot(from_place.value, from_place.rate) / squared};
}

Discs DiscsAt(const EclipseFromPlace& view, double offset) {
  const MoonAndSunVectors places = view.At(offset);
  return {Unit(places.moon) - Unit(places.sun), SemiDiameter(SunRadius(), places.sun),
          SemiDiameter(kPenumbralMoonRadius, places.moon),
          SemiDiameter(kUmbralMoonRadius, places.moon)};
}

// The offset at which the centres are nearest. The place turns with the Earth, so that their
// relative path is bent; the secant rule takes that in.
double Maximum(const EclipseFromPlace& view) {
  const auto half_slope = [&](double offset) {
    const MovingVector chord = DiscsAt(view, offset).chord;
    return Dot(chord.value, chord.rate);
  };
  double last = 0;
  double last_slope = half_slope(last);
  double offset = std::clamp(TimeToClosest(DiscsAt(view, last).chord), -kReach, kReach);
  for (int i = 0; i < 20 && std::abs(offset - last) > kNegligible; ++i) {
    const double slope = half_slope(offset);
    const double next = offset - slope * (offset - last) / (slope - last_slope);
    last = offset;
    last_slope = slope;
    offset = std::clamp(next, -kReach, kReach);
  }
  return offset;
}

// What Newton's method needs of a contact: the square of the distance of the centres less that of
// the distance at contact, and half its rate.
struct Excess {
  double value;
  double half_rate;
};

Excess ExcessOver(const MovingAngle& limit, const MovingVector& chord) {
  const double limit_chord = 2 * std::sin(limit.value / 2);
  return {Dot(chord.value, chord.value) - limit_chord * limit_chord,
          Dot(chord.value, chord.rate) - limit_chord * limit.rate};
}

using Limit = MovingAngle (Discs::*)() const;

// The contact on one side of the maximum (-1 before, 1 after), at which the centres must be nearer
// than the limit. It begins where a straight and even motion would lead; the square of the distance
// is so nearly a parabola that Newton's method comes from there within a few steps, even where
// contact is grazing.
double Contact(const EclipseFromPlace& view, Limit limit, double maximum, const Discs& at_maximum,
               double side) {
  const Excess depth = ExcessOver((at_maximum.*limit)(), at_maximum.chord);
  const double speed = Length(at_maximum.chord.rate);
  double elapsed = std::sqrt(std::max(-depth.value, 0.0)) / speed;
  for (int i = 0; i < 10; ++i) {
    const Discs discs = DiscsAt(view, maximum + side * elapsed);
    const Excess excess = ExcessOver((discs.*limit)(), discs.chord);
    if (side * excess.half_rate <= 0) break;
    const double step = excess.value / (2 * side * excess.half_rate);
    elapsed = std::clamp(elapsed - step, 0.0, kReach);
    if (std::abs(step) < kNegligible) break;
  }
  return maximum + side * elapsed;
}

SolarKind KindOf(const Discs& discs) {
  const double separation = discs.Separation();
  const double inner = discs.Inner().value;
  if (separation >= discs.Outer().value) return SolarKind::kNone;
  if (separation >= std::abs(inner)) return SolarKind::kPartial;
  return inner < 0 ? SolarKind::kTotal : SolarKind::kAnnular;
}

// Of the Sun's diameter; negative while the discs stay apart.
double CoveredDiameter(const Discs& discs) {
  return (discs.Outer().value - discs.Separation()) / (2 * discs.sun.value);
}

double Magnitude(SolarKind kind, const Discs& discs) {
  if (kind == SolarKind::kNone) return 0;
  if (kind != SolarKind::kPartial) return discs.moon_valleys.value / discs.sun.value;
  return CoveredDiameter(discs);
}

// The part of the disc of radius a that lies beyond the chord which it has in common with one of
// radius b, at that distance: sector less triangle.
double Segment(double a, double b, double distance) {
  const double cosine = (a * a + distance * distance - b * b) / (2 * a * distance);
  const double angle = std::acos(std::clamp(cosine, -1.0, 1.0));
  return a * a * (angle - std::sin(angle) * std::cos(angle));
}

double Obscuration(SolarKind kind, const Discs& discs) {
  const double s = discs.sun.value;
  if (kind == SolarKind::kNone) return 0;
  if (kind == SolarKind::kTotal) return 1;
  if (kind == SolarKind::kAnnular) return std::pow(discs.moon_valleys.value / s, 2);
  const double m = discs.moon.value;
  const double d = discs.Separation();
  return (Segment(s, m, d) + Segment(m, s, d)) / (std::numbers::pi * s * s);
}

// The visible instant nearest to the maximum is the greatest on its side, since the centres draw
// apart from there on; the greater side counts.
void FindSeen(const EclipseFromPlace& view, double maximum, double begin, double end,
              SolarAtPlace& eclipse) {
  const auto height = [&](double offset) { return view.SunAt(offset).upper_limb; };
  for (const double contact : {begin, end}) {
    const std::optional<double> visible = FirstVisible(height, maximum, contact);
    if (!visible) continue;
    const Discs discs = DiscsAt(view, *visible);
    const SolarKind kind = KindOf(discs);
    const double magnitude = Magnitude(kind, discs);
    if (std::tie(kind, magnitude) <= std::tie(eclipse.kind_seen, eclipse.magnitude_seen)) continue;
    eclipse.kind_seen = kind;
    eclipse.magnitude_seen = magnitude;
    eclipse.seen_at = view.SunAt(*visible).instant;
  }
}

}  // namespace

std::string_view NameOf(SolarKind kind) {
  constexpr std::array<std::string_view, 4> kNames{kNotSeen, "partial", "annular", "total"};
  return kNames[static_cast<std::size_t>(kind)];
}

SolarAtPlace SolarEclipseAtPlace(const EclipseCourse& course, const Observer& observer) {
  const EclipseFromPlace view(course, observer);
  const double maximum = Maximum(view);
  const Discs discs = DiscsAt(view, maximum);
  SolarAtPlace eclipse;
  eclipse.maximum = view.SunAt(maximum);
  eclipse.kind = KindOf(discs);
  if (eclipse.kind == SolarKind::kNone) return eclipse;
  eclipse.magnitude = Magnitude(eclipse.kind, discs);
  eclipse.obscuration = Obscuration(eclipse.kind, discs);
  const double begin = Contact(view, &Discs::Outer, maximum, discs, -1);
  const double end = Contact(view, &Discs::Outer, maximum, discs, 1);
  eclipse.c1 = view.SunAt(begin);
  eclipse.c4 = view.SunAt(end);
  if (eclipse.kind != SolarKind::kPartial) {
    eclipse.c2 = view.SunAt(Contact(view, &Discs::Inner, maximum, discs, -1));
    eclipse.c3 = view.SunAt(Contact(view, &Discs::Inner, maximum, discs, 1));
  }
  FindSeen(view, maximum, begin, end, eclipse);
  return eclipse;
}

double ContinuedMagnitudeSeen(const EclipseCourse& course, const Observer& observer) {
  // No contour is drawn so low that it would matter whether the Sun is up.
  constexpr double kFarBelow = -0.5;
  const EclipseFromPlace view(course, observer);
  const double maximum = Maximum(view);
  const double greatest = CoveredDiameter(DiscsAt(view, maximum));
  if (greatest < kFarBelow) return std::max(greatest, kSunNotSeen);
  const auto height = [&](double offset) { return view.SunAt(offset).upper_limb; };
  if (height(maximum) > 0) return greatest;
  double seen = kSunNotSeen;
  for (const double end : {-kReach, kReach}) {
    const std::optional<double> visible = FirstVisible(height, maximum, end);
    if (visible) seen = std::max(seen, CoveredDiameter(DiscsAt(view, *visible)));
  }
  return seen;
}

}  // namespace tarnwick
