#include "sky/eclipse_map.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

#include "engines/phases.h"
#include "moon/clock_error.h"
#include "moon/syzyg.h"
#include "sky/contours.h"
#include "sky/eclipse_course.h"
#include "sky/eclipse_path.h"
#include "sky/solar_at_place.h"
#include "tests/sky/eclipse_rows.h"

namespace tarnwick {
namespace {

constexpr GeoPoint kStuttgart{48.78, 9.18};

SolarEclipseMap SolarMapOf(std::int32_t lunation) {
  SolarMapMaker maker(EclipseOf(lunation, kNewMoon));
  while (maker.Step()) {
  }
  return maker.Map();
}

GeoGrid FilledGrid(int step, const GeoQuantity& quantity) {
  GeoGrid grid(step, quantity);
  while (grid.FillRow()) {
  }
  return grid;
}

// By the parity of the crossings of a meridian to the south of the point, counted from the south
// pole, which must lie outside.
bool Encloses(const GeoLines& lines, const GeoPoint& point) {
  bool inside = false;
  for (const std::vector<GeoPoint>& line : lines) {
    for (std::size_t i = 1; i < line.size(); ++i) {
      const GeoPoint& a = line[i - 1];
      const GeoPoint& b = line[i];
      if ((a.longitude > point.longitude) == (b.longitude > point.longitude)) continue;
      const double part = (point.longitude - a.longitude) / (b.longitude - a.longitude);
      if (std::lerp(a.latitude, b.latitude, part) < point.latitude) inside = !inside;
    }
  }
  return inside;
}

double DegreesFrom(const GeoPoint& point, const GeoLines& lines) {
  double least = 360;
  for (const std::vector<GeoPoint>& line : lines) {
    for (const GeoPoint& a : line) {
      const double cosine = std::cos(point.latitude * kDegree);
      least = std::min(
          least, std::hypot(a.latitude - point.latitude, (a.longitude - point.longitude) * cosine));
    }
  }
  return least;
}

void ExpectWithinTheMap(const GeoLines& lines, double longest) {
  for (const std::vector<GeoPoint>& line : lines) {
    ASSERT_GE(line.size(), 2U);
    for (std::size_t i = 0; i < line.size(); ++i) {
      ASSERT_LE(std::abs(line[i].latitude), 90);
      ASSERT_LE(std::abs(line[i].longitude), 180);
      if (i == 0) continue;
      EXPECT_LE(std::abs(line[i].latitude - line[i - 1].latitude), longest);
      EXPECT_LE(std::abs(line[i].longitude - line[i - 1].longitude), longest);
    }
  }
}

// A line comes back to its first point, or both its ends lie at the date line.
void ExpectWithoutLooseEnds(const GeoLines& lines) {
  for (const std::vector<GeoPoint>& line : lines) {
    const bool at_date_line =
        std::abs(line.front().longitude) == 180 && std::abs(line.back().longitude) == 180;
    EXPECT_TRUE(at_date_line || (line.front().latitude == line.back().latitude &&
                                 line.front().longitude == line.back().longitude));
  }
}

TEST(Contours, SettleAmbiguousSquaresByTheMeanAndStopAtTheDateLine) {
  // Two peaks at opposite corners of a square, and a level that their mean is above or below.
  const auto peaks = [](const GeoPoint& p) {
    const auto peak = [&](double latitude, double longitude) {
      return std::max(0.0, 1 - std::hypot(p.latitude - latitude, p.longitude - longitude) / 10);
    };
    return std::max(peak(0, 0), peak(10, 10));
  };
  const GeoGrid two_peaks = FilledGrid(10, peaks);
  EXPECT_EQ(two_peaks.Contours(0.4).size(), 1U);
  EXPECT_EQ(two_peaks.Contours(0.6).size(), 2U);
  const auto around_date_line = [](const GeoPoint& p) {
    return 30 - std::hypot(p.latitude, 180 - std::abs(p.longitude));
  };
  const GeoLines halves = FilledGrid(10, around_date_line).Contours(0);
  EXPECT_EQ(halves.size(), 2U);
  ExpectWithinTheMap(halves, 20);
  ExpectWithoutLooseEnds(halves);
}

// 1999-08-11.
TEST(EclipseMap, MeetsWhatThePlacesSee) {
  const EclipseCourse course = CourseOfEclipse(EclipseOf(-5, kNewMoon));
  const SolarEclipseMap map = SolarMapOf(-5);
  EXPECT_LT(DegreesFrom(kStuttgart, map.central_line), 0.3);
  EXPECT_TRUE(Encloses(map.magnitudes.back(), kStuttgart));
  EXPECT_FALSE(Encloses(map.magnitudes.front(), {-33.9, 18.4}));
  ErrorStatistics errors;
  for (std::size_t i = 1; i < kMappedMagnitudes.size(); ++i) {
    for (const std::vector<GeoPoint>& line : map.magnitudes[i]) {
      for (const GeoPoint& point : line) {
        const SolarAtPlace seen = SolarEclipseAtPlace(course, ObserverAt(point));
        errors.Add(seen.magnitude_seen - kMappedMagnitudes[i]);
      }
    }
  }
  errors.Print("magnitude on its curve", "diameters");
  EXPECT_LT(errors.Largest(), 0.01);
}

// -135-04-15 JC, over Babylon, when delta T is known to 310 s.
TEST(EclipseMap, MovesThePathOfAnOldEclipseByTheErrorOfDeltaT) {
  const EclipseRecord record = EclipseOf(-26403, kNewMoon);
  const TerrestrialTime greatest(record.greatest);
  const SolarEclipseMap map = SolarMapOf(record.lunation);
  const double error = ClockError(map.greatest);
  const double turn = error / 3600 * 15;
  const struct {
    double larger_by;  // seconds
    const PathLines& limits;
  } kClocks[] = {{-error, map.limits_if_less}, {error, map.limits_if_more}};
  for (const auto& [larger_by, limits] : kClocks) {
    SCOPED_TRACE(larger_by);
    const EclipsePath path(greatest,
                           DeltaT(greatest) / kMinutesPerDay + larger_by / kSecondsPerDay);
    const PathLimits found = path.LimitsAt(path.Greatest());
    EXPECT_LT(DegreesFrom(InDegrees(*found.north), limits.northern_limit), 0.2);
    EXPECT_LT(DegreesFrom(InDegrees(*found.south), limits.southern_limit), 0.2);
    const double moved = limits.northern_limit.front().front().longitude -
                         map.limits.northern_limit.front().front().longitude;
    EXPECT_NEAR(moved, std::copysign(turn, larger_by), 0.01);
  }
  EXPECT_TRUE(SolarMapOf(-5).limits_if_less.northern_limit.empty());
}

// 2000-01-21, a total one, and 2009-07-07, a penumbral one.
TEST(EclipseMap, BoundsWhereALunarEclipseIsSeen) {
  for (const std::int32_t lunation : {0, 117}) {
    const EclipseRecord record = EclipseOf(lunation, kFullMoon);
    const LunarEclipseMap map = LunarEclipseMapOf(record);
    const EclipseCourse course = CourseOfEclipse(record);
    const double begin =
        -(lunation == 0 ? record.umbral_minutes : record.penumbral_minutes) / kMinutesPerDay;
    const auto heights = [&](const GeoPoint& point) {
      const Observer observer = ObserverAt(point);
      const EclipseFromPlace view(course, observer);
      return std::minmax({view.MoonAt(begin).upper_limb, view.MoonAt(0).upper_limb,
                          view.MoonAt(-begin).upper_limb});
    };
    const double tolerance = 0.004 * kDegree;
    ExpectWithinTheMap(map.whole, 180);
    ExpectWithinTheMap(map.any, 180);
    for (const std::vector<GeoPoint>& line : map.whole) {
      for (const GeoPoint& point : line) EXPECT_NEAR(heights(point).first, 0, tolerance);
    }
    for (const std::vector<GeoPoint>& line : map.any) {
      for (const GeoPoint& point : line) EXPECT_NEAR(heights(point).second, 0, tolerance);
    }
    EXPECT_FALSE(map.whole.empty() || map.any.empty());
  }
}

}  // namespace
}  // namespace tarnwick
