#include "sky/sky_map.h"

#include <cmath>
#include <cstdint>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "engines/ephemeris/earth_frame.h"
#include "engines/ephemeris/moon_sun_track.h"
#include "engines/phases.h"
#include "moon/syzyg.h"
#include "sky/horizon_circle.h"
#include "sky/map_layer.h"
#include "tests/sky/eclipse_rows.h"

namespace tarnwick {
namespace {

using testing::UnorderedElementsAreArray;

bool Contains(const std::vector<DrawingPoint>& area, const DrawingPoint& p) {
  bool inside = false;
  for (std::size_t i = 0; i < area.size(); ++i) {
    const DrawingPoint& a = area[i];
    const DrawingPoint& b = area[(i + 1) % area.size()];
    if ((a.x > p.x) == (b.x > p.x)) continue;
    if (std::lerp(a.y, b.y, (p.x - a.x) / (b.x - a.x)) < p.y) inside = !inside;
  }
  return inside;
}

double AltitudeOfSun(UniversalTime moment, const GeoPoint& place) {
  const double delta_t = DeltaT(moment) / kMinutesPerDay;
  const double tt = moment.days + delta_t;
  const Vector3 sun = VectorsOf(PositionsAt(tt)).sun.value;
  const Observer observer = ObserverAt(place);
  return observer.DirectionOf(EarthFrame(tt, delta_t).FromEcliptic(sun)).altitude / kDegree;
}

// The layers that are drawn, but those of which no legend is needed.
std::set<int> LayersToTell(const DrawingContent& content) {
  std::set<int> layers;
  for (const DrawnLine& line : content.lines) layers.insert(line.layer);
  for (const DrawnMark& mark : content.marks) layers.insert(mark.layer);
  for (const MapLayer layer : {MapLayer::kGraticule, MapLayer::kCoast, MapLayer::kPlace}) {
    EXPECT_EQ(layers.erase(static_cast<int>(layer)), 1U);
  }
  return layers;
}

// It comes back to its first point, or both its ends lie at the date line.
void ExpectWithoutLooseEnds(const std::vector<DrawingPoint>& line) {
  const auto at_date_line = [](const DrawingPoint& p) { return p.x == 0 || p.x == 1; };
  const DrawingPoint& begin = line.front();
  const DrawingPoint& end = line.back();
  EXPECT_TRUE((begin.x == end.x && begin.y == end.y) || (at_date_line(begin) && at_date_line(end)));
}

SkyMap MapWithPlace() {
  SkyMap map({{{10, 20}, {11, 21}}});
  map.SetPlace({48.78, 9.18}, "Stuttgart");
  return map;
}

int MakeAll(SkyMap& map) {
  int steps = 1;
  while (map.Step() && steps < 100) ++steps;
  return steps;
}

TEST(SkyMap, NightLiesWhereTheSunIsDown) {
  const double kMoments[] = {
      2451623.816,  // equinox of 2000-03-20, a minute or so from the equator
      2451716.574,  // solstices
      2451899.9,    //
      2451810.3,    // before the equinox of September
      700000.25,    // -2796
  };
  SkyMap map = MapWithPlace();
  for (const double moment : kMoments) {
    SCOPED_TRACE(moment);
    map.ShowNight(UniversalTime(moment));
    EXPECT_FALSE(map.Step());
    const DrawingContent content = map.Content();
    ASSERT_EQ(content.lines.back().layer, static_cast<int>(MapLayer::kNight));
    for (double latitude = -85; latitude < 90; latitude += 10) {
      for (double longitude = -179.9; longitude < 180; longitude += 9.7) {
        const double altitude = AltitudeOfSun(UniversalTime(moment), {latitude, longitude});
        if (std::abs(altitude) < 0.3) continue;
        EXPECT_EQ(Contains(content.lines.back().points, OnMap({latitude, longitude})), altitude < 0)
            << latitude << ' ' << longitude;
      }
    }
  }
}

// Over the equator to the last bit, and with the Moon's circle, which falls short of both poles.
TEST(SkyMap, HalfTheMapIsDarkUnderABodyOverTheEquator) {
  constexpr double kZenith = 100;
  for (const HorizonCircle& circle :
       {HorizonCircle{{0, kZenith}, 90}, {{-0.0, kZenith}, 90}, {{1e-12, kZenith}, 89.88}}) {
    std::vector<DrawingPoint> area;
    for (const GeoPoint& point : AreaBelow(circle)) area.push_back(OnMap(point));
    for (const double latitude : {-80.0, 0.0, 80.0}) {
      for (double turn = -178.1; turn < 180; turn += 3) {
        if (std::abs(std::abs(turn) - 90) < 1) continue;
        const double longitude = std::remainder(kZenith + turn, 360);
        EXPECT_EQ(Contains(area, OnMap({latitude, longitude})), std::abs(turn) > 90)
            << latitude << ' ' << longitude;
      }
    }
  }
}

TEST(SkyMap, DrawsAndTellsWhatThereIsOfAnEclipse) {
  using enum MapLayer;
  const std::vector<MapLayer> kOldPath{kNight, kMagnitude,   kPathIfLess, kPathIfMore,
                                       kLimit, kCentralLine, kGreatest};
  const std::tuple<std::int32_t, std::int16_t, std::vector<MapLayer>> cases[] = {
      {-5, kNewMoon, {kNight, kMagnitude, kLimit, kCentralLine, kGreatest}},
      {153, kNewMoon, {kNight, kMagnitude, kLimit, kCentralLine, kGreatest}},  // date line
      {265, kNewMoon, {kNight, kMagnitude, kLimit, kCentralLine, kGreatest}},  // pole
      {188, kNewMoon, {kNight, kMagnitude, kLimit, kCentralLine, kGreatest}},  // ends at the pole
      {-26403, kNewMoon, kOldPath},
      {-804, kNewMoon, {kNight, kMagnitude}},         // partial, only touches
      {177, kNewMoon, {kNight, kMagnitude, kLimit}},  // not central
      {0, kFullMoon, {kMoonDown, kSomeSeen, kWholeSeen, kGreatest}},
      {117, kFullMoon, {kMoonDown, kSomeSeen, kWholeSeen, kGreatest}},  // penumbral
  };
  SkyMap map = MapWithPlace();
  for (const auto& [lunation, phase, told] : cases) {
    SCOPED_TRACE(lunation);
    map.ShowEclipse(EclipseOf(lunation, phase));
    EXPECT_LT(MakeAll(map), 100);
    const DrawingContent content = map.Content();
    std::vector<int> legend;
    for (const LegendEntry& entry : content.legend) legend.push_back(entry.layer);
    const std::set<int> drawn = LayersToTell(content);
    EXPECT_THAT(legend, UnorderedElementsAreArray(drawn));
    std::set<int> expected;
    for (const MapLayer layer : told) expected.insert(static_cast<int>(layer));
    EXPECT_EQ(drawn, expected);
    for (const DrawnLine& line : content.lines) {
      const bool straight = line.points.size() == 2;
      const bool area = line.layer <= static_cast<int>(kMoonDown);
      const bool curve = line.layer == static_cast<int>(kMagnitude);
      if (curve) ExpectWithoutLooseEnds(line.points);
      for (std::size_t i = 0; i < line.points.size(); ++i) {
        const auto [x, y] = line.points[i];
        EXPECT_TRUE(x >= 0 && x <= 1 && y >= 0 && y <= 1) << x << ' ' << y;
        if (i == 0 || straight || area) continue;
        const auto [before_x, before_y] = line.points[i - 1];
        EXPECT_LE(std::abs(x - before_x), curve ? 0.012 : 0.5) << line.layer;
        EXPECT_LE(std::abs(y - before_y), curve ? 0.023 : 1) << line.layer;
      }
    }
  }
}

TEST(SkyMap, NumbersOfCurvesKeepApart) {
  SkyMap map({});
  map.ShowEclipse(EclipseOf(-5, kNewMoon));
  MakeAll(map);
  std::vector<DrawnMark> numbers;
  std::set<std::string> texts;
  for (const DrawnMark& mark : map.Content().marks) {
    if (mark.layer != static_cast<int>(MapLayer::kMagnitude)) continue;
    texts.insert(mark.text);
    for (const DrawnMark& other : numbers) {
      EXPECT_GT(std::hypot(360 * (mark.at.x - other.at.x), 180 * (mark.at.y - other.at.y)), 4.9);
    }
    numbers.push_back(mark);
  }
  EXPECT_EQ(texts.size(), kMappedMagnitudes.size());
  EXPECT_LE(numbers.size(), 2 * texts.size());
}

TEST(SkyMap, MakesAnEclipseOnceAndDropsWhatIsOvertaken) {
  SkyMap map({});
  const EclipseRecord first = EclipseOf(-5, kNewMoon);
  map.ShowEclipse(first);
  EXPECT_GT(MakeAll(map), 5);
  map.ShowEclipse(first);
  EXPECT_TRUE(map.Finished());
  EXPECT_NE(map.Solar()->greatest_place, std::nullopt);

  map.ShowEclipse(EclipseOf(153, kNewMoon));
  EXPECT_TRUE(map.Step());
  map.ShowNight(UniversalTime(2451545));
  EXPECT_FALSE(map.Step());
  EXPECT_EQ(map.Content().legend.size(), 1U);
  EXPECT_EQ(map.Solar(), nullptr);
  map.ShowEclipse(first);
  EXPECT_GT(MakeAll(map), 5);
}

}  // namespace
}  // namespace tarnwick
