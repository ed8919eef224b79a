// What a map of an eclipse shows, as lines on an equirectangular map.
#pragma once

#include <array>
#include <optional>

#include "engines/instant.h"
#include "engines/phase_engine.h"
#include "sky/eclipse_course.h"
#include "sky/eclipse_path.h"
#include "sky/geo_point.h"

namespace tarnwick {

inline constexpr std::array<double, 5> kMappedMagnitudes{0, 0.2, 0.4, 0.6, 0.8};

struct SolarEclipseMap {
  // Around the places that see that magnitude or more above their horizon. In the order of
  // kMappedMagnitudes; none where an eclipse does not come so far.
  std::array<GeoLines, kMappedMagnitudes.size()> magnitudes;
  // None of a partial eclipse; a non-central one has a limit only.
  GeoLines central_line;
  GeoLines northern_limit;
  GeoLines southern_limit;
  // When the axis of the shadow is nearest to the Earth's centre, and where it is then, with
  // duration and width of the path; nothing unless the eclipse is central.
  UniversalTime greatest;
  std::optional<CentralPlace> greatest_place;
};

// By the instant of greatest eclipse and delta T, Terrestrial less Universal Time in days. There
// must be an eclipse. The points of the magnitudes are exact; the paths are finer than a point a
// minute.
SolarEclipseMap SolarEclipseMapOf(TerrestrialTime greatest, double delta_t);

// A phase of a lunar eclipse: by whether the Moon's upper limb is above the horizon at its
// beginning, at greatest eclipse and at its end.
struct LunarPhaseMap {
  GeoLines whole;  // around the places that see it all
  GeoLines any;    // around those that see something; beyond, nothing is seen
};

struct LunarEclipseMap {
  LunarPhaseMap penumbral;
  std::optional<LunarPhaseMap> umbral;
  std::optional<LunarPhaseMap> total;
};

// The lunar eclipse of that record; the course must be about its greatest eclipse.
LunarEclipseMap LunarEclipseMapOf(const EclipseRecord& record, const EclipseCourse& course);

}  // namespace tarnwick
