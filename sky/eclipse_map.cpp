#include "sky/eclipse_map.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <utility>
#include <vector>

#include "engines/time_units.h"
#include "sky/contours.h"
#include "sky/solar_at_place.h"

namespace tarnwick {
namespace {

constexpr int kSolarStep = 2;  // degrees
constexpr int kLunarStep = 3;

// Puts lines together from points in their order, and breaks them at the date line.
class LineMaker {
 public:
  void Add(const std::optional<GeodeticPlace>& place) {
    if (!place) return Break();
    const GeoPoint point{place->latitude / kDegree, place->longitude / kDegree};
    if (!line_.empty()) CrossDateLine(point);
    line_.push_back(point);
  }

  GeoLines Take() {
    Break();
    return std::move(lines_);
  }

 private:
  void Break() {
    if (line_.size() > 1) lines_.push_back(line_);
    line_.clear();
  }

  void CrossDateLine(const GeoPoint& point) {
    const GeoPoint last = line_.back();
    if (std::abs(point.longitude - last.longitude) <= 180) return;
    const double side = std::copysign(180, last.longitude);
    const double before = side - last.longitude;
    const double after = point.longitude + side;
    const double part = before + after == 0 ? 0 : before / (before + after);
    const double latitude = std::lerp(last.latitude, point.latitude, part);
    line_.push_back({latitude, side});
    Break();
    line_.push_back({latitude, -side});
  }

  GeoLines lines_;
  std::vector<GeoPoint> line_;
};

// Calls `visit` for instants from the beginning to the end, closer together towards either, where
// the shadow runs over the Earth the faster the lower it falls. They are a minute apart at most.
template <class Visit>
void VisitInstants(const std::optional<TimeSpan>& span, const Visit& visit) {
  if (!span) return;
  const double length = span->end - span->begin;
  const int count = 20 + static_cast<int>(length * kMinutesPerDay * std::numbers::pi / 2);
  for (int i = 0; i <= count; ++i) {
    visit(span->begin + length * (1 - std::cos(std::numbers::pi * i / count)) / 2);
  }
}

void DrawPath(const EclipsePath& path, SolarEclipseMap& map) {
  LineMaker centre, north, south;
  VisitInstants(path.CentralPhase(), [&](UniversalTime instant) {
    const std::optional<CentralPlace> place = path.CentreAt(instant);
    if (place) centre.Add(place->place);
  });
  VisitInstants(path.UmbralPhase(), [&](UniversalTime instant) {
    const PathLimits limits = path.LimitsAt(instant);
    north.Add(limits.north);
    south.Add(limits.south);
  });
  map.central_line = centre.Take();
  map.northern_limit = north.Take();
  map.southern_limit = south.Take();
}

LunarPhaseMap PhaseMap(const EclipseCourse& course, double semi_duration_minutes) {
  const double end = semi_duration_minutes / kMinutesPerDay;
  const auto heights = [&course, end](const GeoPoint& point) {
    const Observer observer = ObserverAt(point);
    const EclipseFromPlace view(course, observer);
    return std::minmax(
        {view.MoonAt(-end).upper_limb, view.MoonAt(0).upper_limb, view.MoonAt(end).upper_limb});
  };
  const auto least = [&](const GeoPoint& point) { return heights(point).first; };
  const auto greatest = [&](const GeoPoint& point) { return heights(point).second; };
  return {GeoGrid(kLunarStep, least).Contours(0), GeoGrid(kLunarStep, greatest).Contours(0)};
}

std::optional<LunarPhaseMap> PhaseMapIfAny(const EclipseCourse& course, double minutes) {
  if (minutes <= 0) return std::nullopt;
  return PhaseMap(course, minutes);
}

}  // namespace

SolarEclipseMap SolarEclipseMapOf(TerrestrialTime greatest, double delta_t) {
  SolarEclipseMap map;
  const EclipseCourse course(greatest, delta_t);
  const GeoGrid grid(kSolarStep, [&](const GeoPoint& point) {
    return ContinuedMagnitudeSeen(course, ObserverAt(point));
  });
  for (std::size_t i = 0; i < kMappedMagnitudes.size(); ++i) {
    map.magnitudes[i] = grid.Contours(kMappedMagnitudes[i]);
  }
  const EclipsePath path(greatest, delta_t);
  DrawPath(path, map);
  map.greatest = path.Greatest();
  map.greatest_place = path.CentreAt(map.greatest);
  return map;
}

LunarEclipseMap LunarEclipseMapOf(const EclipseRecord& record, const EclipseCourse& course) {
  return {PhaseMap(course, record.penumbral_minutes), PhaseMapIfAny(course, record.umbral_minutes),
          PhaseMapIfAny(course, record.total_minutes)};
}

}  // namespace tarnwick
