// What a map of an eclipse shows, as lines on an equirectangular map.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "engines/instant.h"
#include "engines/phase_engine.h"
#include "sky/contours.h"
#include "sky/eclipse_path.h"
#include "sky/geo_point.h"
#include "sky/horizon_circle.h"

namespace tarnwick {

inline constexpr std::array<double, 5> kMappedMagnitudes{0, 0.2, 0.4, 0.6, 0.8};

// Limits of totality or annularity. None of a partial eclipse; a non-central one has one of them.
struct PathLines {
  GeoLines northern_limit;
  GeoLines southern_limit;
};

struct SolarEclipseMap {
  // Around the places that see that magnitude or more above their horizon. In the order of
  // kMappedMagnitudes; none where an eclipse does not come so far.
  std::array<GeoLines, kMappedMagnitudes.size()> magnitudes;
  GeoLines central_line;  // none unless the eclipse is central
  PathLines limits;
  // The limits with delta T smaller and larger by its standard error; none where that moves them by
  // less than a tenth of a degree.
  PathLines limits_if_less;
  PathLines limits_if_more;
  // When the axis of the shadow is nearest to the Earth's centre, and where it is then, with
  // duration and width of the path; nothing unless the eclipse is central.
  UniversalTime greatest;
  std::optional<CentralPlace> greatest_place;
};

// Makes the map of a solar eclipse in steps of a few milliseconds: first the path, then, at the
// end, the curves of magnitude. The points of these are exact; the paths are finer than a point a
// minute.
class SolarMapMaker {
 public:
  // By the delta T of the year.
  explicit SolarMapMaker(const EclipseRecord& record);

  // Makes the next part, if there is one. Returns whether there are more.
  bool Step();
  // As far as it is made. The first part is all but the curves of magnitude.
  const SolarEclipseMap& Map() const { return map_; }

 private:
  void DrawPath();
  void DrawPathsOfOtherClocks();
  bool FillRows();

  TerrestrialTime greatest_;
  double delta_t_;  // days
  GeoGrid grid_;
  bool has_path_ = false;
  bool grid_is_filled_ = false;
  std::size_t curves_ = 0;  // of magnitude that are made
  SolarEclipseMap map_;
};

// Of a lunar eclipse, its umbral phase or, if there is none, the penumbral one: by whether the
// Moon's upper limb is above the horizon at its beginning, at greatest eclipse and at its end.
struct LunarEclipseMap {
  std::array<HorizonCircle, 3> moon_up;
  GeoLines whole;  // around the places that see it at each of them
  GeoLines any;    // around those that see it at one of them; beyond, nothing is seen
};

// By the delta T of the year.
LunarEclipseMap LunarEclipseMapOf(const EclipseRecord& record);

}  // namespace tarnwick
