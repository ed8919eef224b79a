#include "sky/sky_map.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "calendars/text.h"
#include "engines/ephemeris/earth_frame.h"
#include "engines/ephemeris/moon_sun_track.h"
#include "engines/ephemeris/positions.h"
#include "moon/clock_error.h"
#include "moon/syzyg.h"
#include "sky/curve_marks.h"
#include "sky/horizon_circle.h"
#include "sky/map_layer.h"

namespace tarnwick {
namespace {

constexpr int kGraticuleStep = 30;  // degrees

DrawnLine LineOf(MapLayer layer, const std::vector<GeoPoint>& points) {
  DrawnLine line{static_cast<int>(layer), {}};
  line.points.reserve(points.size());
  for (const GeoPoint& point : points) line.points.push_back(OnMap(point));
  return line;
}

DrawnMark MarkAt(MapLayer layer, const GeoPoint& at, std::string text) {
  return {static_cast<int>(layer), OnMap(at), std::move(text)};
}

std::vector<DrawnLine> Graticule() {
  std::vector<DrawnLine> lines;
  for (int longitude = -180 + kGraticuleStep; longitude < 180; longitude += kGraticuleStep) {
    const double meridian = longitude;
    lines.push_back(LineOf(MapLayer::kGraticule, {{-90, meridian}, {90, meridian}}));
  }
  for (int latitude = -90 + kGraticuleStep; latitude < 90; latitude += kGraticuleStep) {
    const double parallel = latitude;
    lines.push_back(LineOf(MapLayer::kGraticule, {{parallel, -180}, {parallel, 180}}));
  }
  return lines;
}

std::vector<GeoPoint> NightAt(UniversalTime moment) {
  const double delta_t = DeltaTDays(moment);
  const double tt = moment.days + delta_t;
  const Vector3 sun = VectorsOf(PositionsAt(tt)).sun.value;
  return AreaBelow(GeometricHorizon(EarthFrame(tt, delta_t).FromEcliptic(sun)));
}

bool SameEclipse(const EclipseRecord& a, const EclipseRecord& b) {
  return a.type == b.type && a.greatest == b.greatest;
}

// The number of each curve, where it has room.
std::vector<DrawnMark> MagnitudeMarks(const SolarEclipseMap& map) {
  GeoLines path = map.central_line;
  path.insert(path.end(), map.limits.northern_limit.begin(), map.limits.northern_limit.end());
  path.insert(path.end(), map.limits.southern_limit.begin(), map.limits.southern_limit.end());
  std::vector<DrawnMark> marks;
  for (const CurveMark& mark : MarkCurves({map.magnitudes.begin(), map.magnitudes.end()}, path)) {
    marks.push_back(MarkAt(MapLayer::kMagnitude, mark.at,
                           FormatFixed(kMappedMagnitudes[mark.curve], 1, false)));
  }
  return marks;
}

// Of whose limits the legend tells.
std::string_view CentralPhaseOf(EclipseType type) {
  if (type == kCentralTotalSolar || type == kNonCentralTotalSolar) return "totality";
  if (type == kCentralAnnularSolar || type == kNonCentralAnnularSolar) return "annularity";
  return "totality or annularity";
}

// Adds what belongs to one layer after the other, with what the legend tells of it.
class ContentMaker {
 public:
  explicit ContentMaker(DrawingContent& content) : content_(content) {}

  void AddArea(MapLayer layer, const std::vector<GeoPoint>& area) {
    content_.lines.push_back(LineOf(layer, area));
  }
  void AddLines(MapLayer layer, const GeoLines& lines) {
    for (const std::vector<GeoPoint>& line : lines) AddArea(layer, line);
  }
  void AddLimits(MapLayer layer, const PathLines& limits) {
    AddLines(layer, limits.northern_limit);
    AddLines(layer, limits.southern_limit);
  }
  // Of a layer of which nothing has been added the legend says nothing.
  void Tell(MapLayer layer, std::string text) {
    const auto in_layer = [layer](const auto& part) {
      return part.layer == static_cast<int>(layer);
    };
    if (std::ranges::any_of(content_.lines, in_layer) ||
        std::ranges::any_of(content_.marks, in_layer)) {
      content_.legend.push_back({static_cast<int>(layer), std::move(text)});
    }
  }

 private:
  DrawingContent& content_;
};

void AddSolarEclipse(const SolarEclipseMap& map, const EclipseRecord& record,
                     const std::vector<DrawnMark>& magnitude_marks, DrawingContent& content) {
  ContentMaker maker(content);
  for (const GeoLines& lines : map.magnitudes) maker.AddLines(MapLayer::kMagnitude, lines);
  maker.AddLimits(MapLayer::kPathIfLess, map.limits_if_less);
  maker.AddLimits(MapLayer::kPathIfMore, map.limits_if_more);
  maker.AddLimits(MapLayer::kLimit, map.limits);
  maker.AddLines(MapLayer::kCentralLine, map.central_line);
  content.marks.insert(content.marks.end(), magnitude_marks.begin(), magnitude_marks.end());
  if (map.greatest_place) {
    content.marks.push_back(MarkAt(MapLayer::kGreatest, InDegrees(map.greatest_place->place), {}));
  }
  const std::string error = ErrorText(ClockError(map.greatest));
  maker.Tell(MapLayer::kGreatest, "greatest eclipse");
  maker.Tell(MapLayer::kCentralLine, "central line");
  maker.Tell(MapLayer::kLimit, "limits of " + std::string(CentralPhaseOf(record.type)));
  maker.Tell(MapLayer::kPathIfLess, "path if delta T is " + error + " less");
  maker.Tell(MapLayer::kPathIfMore, "path if delta T is " + error + " more");
  maker.Tell(MapLayer::kMagnitude, "magnitude seen");
  maker.Tell(MapLayer::kNight, "night at greatest eclipse");
}

void AddLunarEclipse(const LunarEclipseMap& map, const EclipseRecord& record,
                     DrawingContent& content) {
  ContentMaker maker(content);
  for (const HorizonCircle& up : map.moon_up) {
    maker.AddArea(MapLayer::kMoonDown, AreaBelow(up));
  }
  maker.AddLines(MapLayer::kSomeSeen, map.any);
  maker.AddLines(MapLayer::kWholeSeen, map.whole);
  content.marks.push_back(MarkAt(MapLayer::kGreatest, map.moon_up[1].zenith, {}));
  const std::string phase = record.umbral_minutes > 0 ? "umbral phase" : "penumbral phase";
  maker.Tell(MapLayer::kGreatest, "Moon in the zenith at greatest eclipse");
  maker.Tell(MapLayer::kWholeSeen, "all of the " + phase + " seen within");
  maker.Tell(MapLayer::kSomeSeen, "some of the " + phase + " seen within");
  maker.Tell(MapLayer::kMoonDown, "Moon down as it begins, is greatest, or ends");
}

}  // namespace

DrawingPoint OnMap(const GeoPoint& point) {
  return {(point.longitude + 180) / 360, (90 - point.latitude) / 180};
}

GeoPoint PlaceOnMap(const DrawingPoint& point) {
  return {90 - 180 * std::clamp(point.y, 0.0, 1.0), 360 * std::clamp(point.x, 0.0, 1.0) - 180};
}

SkyMap::SkyMap(const GeoLines& coastlines) : ground_(Graticule()) {
  for (const std::vector<GeoPoint>& line : coastlines) {
    ground_.push_back(LineOf(MapLayer::kCoast, line));
  }
}

void SkyMap::SetPlace(const GeoPoint& place, std::string name) {
  place_ = MarkAt(MapLayer::kPlace, place, std::move(name));
}

void SkyMap::StartOver() {
  record_ = {};
  solar_.reset();
  lunar_.reset();
  magnitude_marks_.clear();
  night_.clear();
}

void SkyMap::ShowNight(UniversalTime moment) {
  StartOver();
  night_ = NightAt(moment);
  finished_ = true;
}

void SkyMap::ShowEclipse(const EclipseRecord& record) {
  if (SameEclipse(record, record_)) return;
  StartOver();
  record_ = record;
  finished_ = IsLunarEclipse(record.type);
  if (finished_) {
    lunar_ = LunarEclipseMapOf(record);
  } else {
    night_ = NightAt(GreatestEclipse(record));
    solar_.emplace(record);
  }
}

bool SkyMap::Step() {
  if (finished_ || solar_->Step()) return !finished_;
  magnitude_marks_ = MagnitudeMarks(solar_->Map());
  finished_ = true;
  return false;
}

DrawingContent SkyMap::Content() const {
  DrawingContent content{ground_, {}, {}};
  ContentMaker maker(content);
  if (!night_.empty()) maker.AddArea(MapLayer::kNight, night_);
  if (solar_) {
    AddSolarEclipse(solar_->Map(), record_, magnitude_marks_, content);
  } else if (lunar_) {
    AddLunarEclipse(*lunar_, record_, content);
  } else {
    maker.Tell(MapLayer::kNight, "night");
  }
  if (place_) content.marks.push_back(*place_);
  return content;
}

}  // namespace tarnwick
