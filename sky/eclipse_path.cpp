// Everything is computed in the frame that turns with the Earth, where a place rests and the axis
// of the shadow moves. Unit of length: the Earth's equatorial radius. Times are days from the
// middle of the track.
#include "sky/eclipse_path.h"

#include <algorithm>
#include <cmath>

#include "engines/ephemeris/bounded_search.h"
#include "engines/ephemeris/earth_frame.h"
#include "engines/ephemeris/observer.h"
#include "engines/ephemeris/positions.h"
#include "engines/time_units.h"

namespace tarnwick {
namespace {

// The flattening puts the deepest contact of shadow and ellipsoid up to half a minute off greatest
// eclipse.
constexpr double kContactShift = 0.003;
// A central line lasts 4.0 hours at most, and the umbra leaves the Earth a few minutes later.
constexpr double kHalfPhase = 0.12;
// Totality and annularity last less than 13 minutes.
constexpr double kWellOutside = 0.01;
// Half the time over which motions are taken: short against the turn of the Earth, long against the
// 40 microseconds to which an AJD is rounded.
constexpr double kHalfStep = 10.0 / kSecondsPerDay;
// Of the search for a limit. All but a few places at the very limb settle to a metre.
constexpr int kRounds = 8;

constexpr Spheroid kEarth = Spheroid::TurningEarth();

GeodeticPlace PlaceOf(const Vector3& point) {
  return {std::atan2(point.z, (1 - kEccentricitySquared) * std::hypot(point.x, point.y)),
          std::atan2(point.y, point.x)};
}

Vector3 PointOf(const Line& line, const Spheroid::Chord& chord) {
  return line.foot + chord.upper * line.direction;
}

// Where a line comes out of the Earth towards the Sun; if it misses, its place next to the limb.
Vector3 UpperPoint(const Line& line) { return PointOf(line, kEarth.ChordOf(line)); }

// The straight line on the cone that lies beside the axis in a direction across it.
Line LineOnCone(const Shadow& shadow, const Vector3& beside) {
  const Cone& cone = shadow.antumbra;
  const Vector3 vertex = shadow.axis.foot + cone.vertex * shadow.axis.direction;
  const double cosine = std::sqrt(1 - cone.sine * cone.sine);
  const Vector3 direction = cosine * shadow.axis.direction - cone.sine * beside;
  return {vertex - Dot(vertex, direction) * direction, direction};
}

// How a place that goes round with the Earth lies in the shadow, or how that changes in a day.
struct PlaceInShadow {
  Vector3 from_axis;    // to the place, at right angles
  double antumbra = 0;  // radius of it at the height of the place; negative in the umbra
};

PlaceInShadow Locate(const Vector3& place, const Shadow& shadow) {
  const double height = Dot(place, shadow.axis.direction);
  return {place - shadow.axis.foot - height * shadow.axis.direction,
          RadiusAt(shadow.antumbra, height)};
}

PlaceInShadow RateOf(const Vector3& place, const Shadow& before, const Shadow& after) {
  const PlaceInShadow from = Locate(place, before);
  const PlaceInShadow to = Locate(place, after);
  const double per_day = 1 / (2 * kHalfStep);
  return {per_day * (to.from_axis - from.from_axis), per_day * (to.antumbra - from.antumbra)};
}

// The direction across the axis, left of the shadow's way for side 1 and right of it for -1, in
// which the place neither leaves the edge of the antumbra nor is overtaken by it.
Vector3 StillDirection(const PlaceInShadow& rate, const Vector3& to_sun, double side) {
  const Vector3 way = rate.from_axis - Dot(rate.from_axis, to_sun) * to_sun;
  const double speed = Length(way);
  const Vector3 back = 1 / speed * way;
  const double lag = std::clamp(rate.antumbra / speed, -1.0, 1.0);
  return lag * back + side * std::sqrt(1 - lag * lag) * Cross(back, to_sun);
}

double AxisExcess(const Shadow& shadow) { return kEarth.ChordOf(shadow.axis).excess; }

// From the Earth to the nearer of umbra and antumbra, where they pass it by or near its limb.
double UmbraGap(const Shadow& shadow) {
  const auto gap = [&](const Cone& cone) {
    return kEarth.FarthestTangentPlane(shadow.axis, cone).gap;
  };
  return std::min(gap(shadow.antumbra), gap(Opposite(shadow.antumbra)));
}

}  // namespace

EclipsePath::EclipsePath(TerrestrialTime new_moon, double delta_t)
    : track_(new_moon.days, VectorsOf(PositionsAt(new_moon.days))),
      new_moon_(new_moon.days),
      delta_t_(delta_t),
      greatest_(track_.ClosestApproach(ShadowAxisFoot)),
      central_(FindCentralPhase()),
      umbral_(FindUmbralPhase()) {}

Shadow EclipsePath::ShadowAt(double offset) const {
  const EarthFrame frame(new_moon_ + offset, delta_t_);
  MoonAndSunVectors places = track_.At(offset);
  places.moon.value = frame.FromEcliptic(places.moon.value);
  places.sun.value = frame.FromEcliptic(places.sun.value);
  return ShadowOf(places);
}

EclipsePath::ShadowOnItsWay EclipsePath::ShadowAround(double offset) const {
  return {ShadowAt(offset - kHalfStep), ShadowAt(offset), ShadowAt(offset + kHalfStep)};
}

std::optional<TimeSpan> EclipsePath::FindCentralPhase() const {
  const auto excess = [this](double offset) { return AxisExcess(ShadowAt(offset)); };
  const double deepest =
      MinimumBetween(excess, greatest_ - kContactShift, greatest_ + kContactShift);
  if (excess(deepest) > 0) return {};
  return TimeSpan{InUniversalTime(RootBetween(excess, deepest, deepest - kHalfPhase)),
                  InUniversalTime(RootBetween(excess, deepest, deepest + kHalfPhase))};
}

// The gap holds beside the limb, where a shadow whose axis meets the Earth is when the axis begins
// and ends to do so.
std::optional<TimeSpan> EclipsePath::FindUmbralPhase() const {
  const auto gap = [this](double offset) { return UmbraGap(ShadowAt(offset)); };
  const auto span_around = [&](double first, double last) {
    return TimeSpan{InUniversalTime(RootBetween(gap, first, greatest_ - kHalfPhase)),
                    InUniversalTime(RootBetween(gap, last, greatest_ + kHalfPhase))};
  };
  if (central_) return span_around(OffsetOf(central_->begin), OffsetOf(central_->end));
  const double deepest = MinimumBetween(gap, greatest_ - kContactShift, greatest_ + kContactShift);
  if (gap(deepest) > 0) return {};
  return span_around(deepest, deepest);
}

// For how long a place that lies in the umbra stays in it.
double EclipsePath::DurationAt(const Vector3& place, double inside) const {
  const auto beyond_edge = [&](double offset) {
    const PlaceInShadow at = Locate(place, ShadowAt(offset));
    return Length(at.from_axis) - std::abs(at.antumbra);
  };
  return RootBetween(beyond_edge, inside, inside + kWellOutside) -
         RootBetween(beyond_edge, inside, inside - kWellOutside);
}

// The strip's width is that of the shadow, across its way, cut by the tangent plane.
std::optional<CentralPlace> EclipsePath::CentreAt(UniversalTime instant) const {
  if (!central_ || instant < central_->begin || instant > central_->end) return {};
  const double offset = OffsetOf(instant);
  const ShadowOnItsWay shadow = ShadowAround(offset);
  const Vector3 to_sun = shadow.now.axis.direction;
  const Vector3 point = UpperPoint(shadow.now.axis);
  const double antumbra = Locate(point, shadow.now).antumbra;
  const Vector3 way = RateOf(point, shadow.before, shadow.after).from_axis;

  CentralPlace centre;
  centre.place = PlaceOf(point);
  const Observer observer(centre.place.latitude, centre.place.longitude);
  centre.sun_altitude = observer.DirectionOf(to_sun).altitude;
  centre.total = antumbra < 0;
  centre.duration_seconds = DurationAt(point, offset) * kSecondsPerDay;
  centre.width_km =
      2 * std::abs(antumbra) * kKmPerEarthRadius /
      std::hypot(std::sin(centre.sun_altitude), std::sin(observer.DirectionOf(way).altitude));
  return centre;
}

// The edge beside the axis in a direction n neither comes nor goes if the place's motion along n
// keeps pace with the radius. That motion hardly depends on where at the edge the place is, so that
// a few rounds settle n.
std::optional<Vector3> EclipsePath::StillEdge(const ShadowOnItsWay& shadow, double side) {
  Line line = shadow.now.axis;
  for (int i = 0; i < kRounds; ++i) {
    const PlaceInShadow rate = RateOf(UpperPoint(line), shadow.before, shadow.after);
    line = LineOnCone(shadow.now, StillDirection(rate, shadow.now.axis.direction, side));
  }
  const Spheroid::Chord chord = kEarth.ChordOf(line);
  if (chord.excess > 0) return {};
  return PointOf(line, chord);
}

PathLimits EclipsePath::LimitsAt(UniversalTime instant) const {
  if (!umbral_ || instant < umbral_->begin || instant > umbral_->end) return {};
  const ShadowOnItsWay shadow = ShadowAround(OffsetOf(instant));
  PathLimits limits;
  for (const double side : {-1.0, 1.0}) {
    const std::optional<Vector3> edge = StillEdge(shadow, side);
    if (!edge) continue;
    // In the umbra the radius is negative, and the line beside the axis to the left lies right.
    const bool left = (Locate(*edge, shadow.now).antumbra > 0) == (side > 0);
    (left ? limits.north : limits.south) = PlaceOf(*edge);
  }
  return limits;
}

}  // namespace tarnwick
