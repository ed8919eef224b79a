// What the map of the window of the sky at a place shows: the night at a moment, or an eclipse.
//
// The map is equirectangular: from longitude -180 on the left to 180, from the north pole above to
// the south pole. The layers of its content are those of map_layer.h.
//
// Curves of an eclipse take a while, so that they are made in steps of a few milliseconds, between
// which something else may be asked for:
//
//   map.ShowEclipse(record);
//   while (map.Step()) LetOthersAct();
//   drawing.SetContent(map.Content());
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "controls/drawing.h"
#include "engines/instant.h"
#include "engines/phase_engine.h"
#include "sky/eclipse_map.h"
#include "sky/geo_point.h"

namespace tarnwick {

// Where a place lies on the map, and the place that lies there; a point outside is taken as the
// nearest one on the map.
DrawingPoint OnMap(const GeoPoint& point);
GeoPoint PlaceOnMap(const DrawingPoint& point);

class SkyMap {
 public:
  explicit SkyMap(const GeoLines& coastlines);

  // The place that is marked; there is none before.
  void SetPlace(const GeoPoint& place, std::string name);

  // The map without an eclipse: where the Sun's centre is down at a moment. It is made at once.
  void ShowNight(UniversalTime moment);
  // Begins the map of an eclipse, solar or lunar, of which there must be one. If it is the one on
  // the map nothing is done: it is not made again.
  void ShowEclipse(const EclipseRecord& record);

  // Makes the next part, if there is one. Returns whether there are more.
  bool Step();
  bool Finished() const { return finished_; }

  // What is made so far: ground, night and place at any time, then the path, and at the end the
  // curves of magnitude with their numbers. The legend tells of every layer that is there but the
  // coasts, the graticule and the place, which has its name beside it.
  DrawingContent Content() const;

  // Of a solar eclipse, as far as it is made; nothing of any other map.
  const SolarEclipseMap* Solar() const { return solar_ ? &solar_->Map() : nullptr; }

 private:
  void StartOver();

  std::vector<DrawnLine> ground_;
  std::optional<DrawnMark> place_;
  EclipseRecord record_{};  // on the map; of no type without an eclipse
  std::vector<GeoPoint> night_;
  std::optional<SolarMapMaker> solar_;
  std::vector<DrawnMark> magnitude_marks_;
  std::optional<LunarEclipseMap> lunar_;
  bool finished_ = true;
};

}  // namespace tarnwick
