#include "sky/eclipse_map.h"

#include <cmath>
#include <numbers>
#include <vector>

#include "engines/ephemeris/earth_frame.h"
#include "engines/time_units.h"
#include "moon/clock_error.h"
#include "moon/syzyg.h"
#include "sky/eclipse_course.h"
#include "sky/geo_lines.h"
#include "sky/solar_at_place.h"

namespace tarnwick {
namespace {

constexpr int kGridStep = 2;  // degrees
constexpr int kRowsPerStep = 8;
constexpr double kLeastMove = 0.1;  // of a path, degrees, for it to be told apart

void AddTo(LineMaker& line, const std::optional<GeodeticPlace>& place) {
  if (!place) return line.Break();
  line.Add(InDegrees(*place));
}

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

GeoLines CentralLine(const EclipsePath& path) {
  LineMaker line;
  VisitInstants(path.CentralPhase(), [&](UniversalTime instant) {
    const std::optional<CentralPlace> centre = path.CentreAt(instant);
    if (centre) AddTo(line, centre->place);
  });
  return line.Take();
}

PathLines Limits(const EclipsePath& path) {
  LineMaker north, south;
  VisitInstants(path.UmbralPhase(), [&](UniversalTime instant) {
    const PathLimits limits = path.LimitsAt(instant);
    AddTo(north, limits.north);
    AddTo(south, limits.south);
  });
  return {north.Take(), south.Take()};
}

PathLines MovedEast(const PathLines& lines, double degrees) {
  return {MovedEast(lines.northern_limit, degrees), MovedEast(lines.southern_limit, degrees)};
}

// How much further the Earth has turned by an instant if delta T is so much smaller, degrees.
double TurnOfEarth(TerrestrialTime instant, double delta_t, double smaller_by) {
  const double ut = instant.days - delta_t;
  const double turn =
      ApparentSiderealTime(ut + smaller_by, instant.days) - ApparentSiderealTime(ut, instant.days);
  return std::remainder(turn / kDegree, 360);
}

void AddIf(bool belongs, const GeoPoint& point, LineMaker& line) {
  if (!belongs) return line.Break();
  line.Add(point);
}

// The parts of the three horizons beyond which all others have the Moon, or none has it.
void DrawEdges(LunarEclipseMap& map) {
  LineMaker whole, any;
  for (std::size_t i = 0; i < map.moon_up.size(); ++i) {
    for (const GeoPoint& point : EdgeOf(map.moon_up[i])) {
      std::size_t others_up = 0;
      for (std::size_t j = 0; j < map.moon_up.size(); ++j) {
        if (j != i && IsUp(map.moon_up[j], point)) ++others_up;
      }
      AddIf(others_up == 0, point, any);
      AddIf(others_up == map.moon_up.size() - 1, point, whole);
    }
    any.Break();
    whole.Break();
  }
  map.whole = whole.Take();
  map.any = any.Take();
}

double DeltaTInDays(const EclipseRecord& record) {
  return DeltaTDays(TerrestrialTime(record.greatest));
}

}  // namespace

SolarMapMaker::SolarMapMaker(const EclipseRecord& record)
    : greatest_(record.greatest),
      delta_t_(DeltaTInDays(record)),
      grid_(kGridStep, [course = EclipseCourse(greatest_, delta_t_)](const GeoPoint& point) {
        return ContinuedMagnitudeSeen(course, ObserverAt(point));
      }) {}

bool SolarMapMaker::Step() {
  if (!has_path_) {
    DrawPath();
    DrawPathsOfOtherClocks();
    has_path_ = true;
  } else if (!grid_is_filled_) {
    grid_is_filled_ = !FillRows();
  } else if (curves_ < kMappedMagnitudes.size()) {
    map_.magnitudes[curves_] = grid_.Contours(kMappedMagnitudes[curves_]);
    ++curves_;
  }
  return curves_ < kMappedMagnitudes.size();
}

void SolarMapMaker::DrawPath() {
  const EclipsePath path(greatest_, delta_t_);
  map_.central_line = CentralLine(path);
  map_.limits = Limits(path);
  map_.greatest = path.Greatest();
  map_.greatest_place = path.CentreAt(map_.greatest);
}

// With another delta T the same shadow falls upon an Earth that has turned more or less.
void SolarMapMaker::DrawPathsOfOtherClocks() {
  const double error = ClockError(map_.greatest) / kSecondsPerDay;
  const double turn = TurnOfEarth(greatest_, delta_t_, error);
  if (std::abs(turn) < kLeastMove) return;
  map_.limits_if_less = MovedEast(map_.limits, -turn);
  map_.limits_if_more = MovedEast(map_.limits, turn);
}

bool SolarMapMaker::FillRows() {
  for (int i = 0; i < kRowsPerStep; ++i) {
    if (!grid_.FillRow()) return false;
  }
  return true;
}

LunarEclipseMap LunarEclipseMapOf(const EclipseRecord& record) {
  const double minutes =
      record.umbral_minutes > 0 ? record.umbral_minutes : record.penumbral_minutes;
  const double delta_t = DeltaTInDays(record);
  const EclipseCourse course(TerrestrialTime(record.greatest), delta_t);
  LunarEclipseMap map;
  for (std::size_t i = 0; i < map.moon_up.size(); ++i) {
    const double offset = (static_cast<double>(i) - 1) * minutes / kMinutesPerDay;
    const EarthFrame frame(record.greatest + offset, delta_t);
    map.moon_up[i] = MoonsVisibleHorizon(frame.FromEcliptic(course.At(offset).moon.value));
  }
  DrawEdges(map);
  return map;
}

}  // namespace tarnwick
