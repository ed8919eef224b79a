#include "sky/eclipse_path.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <optional>
#include <string>

#include "engines/eclipse_type.h"
#include "engines/ephemeris/earth_frame.h"
#include "engines/ephemeris/observer.h"
#include "engines/phases.h"
#include "engines/time_units.h"
#include "moon/syzyg.h"
#include "tests/error_statistics.h"
#include "tests/reference_data.h"

namespace tarnwick {
namespace {

constexpr double kDegree = std::numbers::pi / 180;
constexpr double kSecond = 1.0 / kSecondsPerDay;

Vector3 PointAt(const GeodeticPlace& place) {
  return Observer(place.latitude, place.longitude).Position();
}

// A row of the table of paths, and what is found for its eclipse.
struct PathRow {
  explicit PathRow(const ReferenceRow& row)
      : cells(row), path(Syzygy(std::stoi(row.at("n")), kNewMoon), Number("delta_t") * kSecond) {}

  double Number(const std::string& column) const { return std::stod(cells.at(column)); }
  UniversalTime Instant(const std::string& column) const { return UniversalTime(Number(column)); }
  Vector3 Point(const std::string& i) const {
    return PointAt({Number("lat" + i) * kDegree, Number("lon" + i) * kDegree});
  }

  ReferenceRow cells;
  EclipsePath path;
};

TEST(EclipsePath, ItsAxisComesAndGoesWhenAndWhereTheReferenceHasIt) {
  ErrorStatistics line, ends, ends_of_short;
  for (const ReferenceRow& cells : ReadReferenceData("sky/solar_path.csv")) {
    SCOPED_TRACE(cells.at("n"));
    const PathRow row(cells);
    const auto check_line = [&](const std::string& i, const std::string& ut) {
      const CentralPlace centre = row.path.CentreAt(row.Instant(ut)).value();
      line.Add(Length(PointAt(centre.place) - row.Point(i)) * kKmPerEarthRadius *
               std::sin(centre.sun_altitude));
    };
    check_line("", "ut_greatest");
    for (int i = 1; i <= 10; ++i) check_line("_" + std::to_string(i), "ut_" + std::to_string(i));
    const UniversalTime begin = row.Instant("ut_begin");
    const UniversalTime end = row.Instant("ut_end");
    ErrorStatistics& errors = end - begin < 1200 * kSecond ? ends_of_short : ends;
    errors.Add((row.path.CentralPhase().value().begin - begin) / kSecond);
    errors.Add((row.path.CentralPhase().value().end - end) / kSecond);
  }
  line.Print("centre line x sin(altitude)", "km");
  ends.Print("begin and end of the path", "s");
  ends_of_short.Print("begin and end of a path under 20 minutes", "s");
  EXPECT_LT(line.Largest(), 1.0);
  EXPECT_LT(ends.Largest(), 3.0);
  EXPECT_LT(ends_of_short.Largest(), 8.0);
}

TEST(EclipsePath, TellsWhatIsSeenAtGreatestEclipse) {
  ErrorStatistics duration, short_duration, width, altitude;
  for (const ReferenceRow& cells : ReadReferenceData("sky/solar_path.csv")) {
    const PathRow row(cells);
    const CentralPlace centre = row.path.CentreAt(row.Instant("ut_greatest")).value();
    EXPECT_EQ(centre.total ? "total" : "annular", cells.at("kind")) << cells.at("n");
    const double seconds = row.Number("duration_s");
    (seconds < 5 ? short_duration : duration).Add(centre.duration_seconds - seconds);
    // The km in which the line is unsure moves a low Sun, and so the width, by more than a percent:
    // there the width is told for the altitude of the reference.
    const double sun_altitude = row.Number("sun_alt") * kDegree;
    const double sine = std::sin(sun_altitude);
    const double width_km = row.Number("width_plane_km");
    const double stretch = sun_altitude < 10 * kDegree ? std::sin(centre.sun_altitude) / sine : 1;
    width.Add((centre.width_km * stretch - width_km) / (0.1 + 0.005 * width_km));
    altitude.Add((centre.sun_altitude - sun_altitude) * kKmPerEarthRadius * sine);
  }
  duration.Print("duration", "s");
  short_duration.Print("duration under 5 s", "s");
  width.Print("width", "of 0.1 km + 0.5 %");
  altitude.Print("altitude of the Sun on the ground x sin(altitude)", "km");
  EXPECT_LT(duration.Largest(), 0.2);
  EXPECT_LT(short_duration.Largest(), 1.0);
  EXPECT_LT(width.Largest(), 1.0);
  EXPECT_LT(altitude.Largest(), 1.0);
}

// Of a place that goes round with the Earth: the square of its distance from the axis less that of
// the umbra's radius there. At a limit it falls to 0, and no lower, at the instant of the limit.
double BeyondEdge(const GeodeticPlace& place, UniversalTime instant, double delta_t) {
  const double ajd_tt = instant.days + delta_t;
  const Shadow shadow = ShadowOf(VectorsOf(PositionsAt(ajd_tt)));
  const Vector3 point = EarthFrame(ajd_tt, delta_t).ToEcliptic(PointAt(place));
  const double height = Dot(point, shadow.axis.direction);
  const Vector3 from_axis = point - shadow.axis.foot - height * shadow.axis.direction;
  const double radius = RadiusAt(shadow.antumbra, height);
  return Dot(from_axis, from_axis) - radius * radius;
}

struct TouchErrors {
  void Add(const std::optional<GeodeticPlace>& limit, UniversalTime instant, double delta_t) {
    if (!limit) return;
    const double before = BeyondEdge(*limit, instant - 10 * kSecond, delta_t);
    const double now = BeyondEdge(*limit, instant, delta_t);
    const double after = BeyondEdge(*limit, instant + 10 * kSecond, delta_t);
    distance.Add(now);
    seconds.Add(5 * (before - after) / (before - 2 * now + after));
  }
  ErrorStatistics distance, seconds;
};

TEST(EclipsePath, ItsLimitsAreThereForTheEclipsesThatHaveThemWhereTheEdgeOnlyTouches) {
  TouchErrors errors;
  for (const ReferenceRow& row : ReadReferenceData("eclipses_solar.csv")) {
    SCOPED_TRACE(row.at("lunation"));
    const int type = std::stoi(row.at("type"));
    const bool central = type == kCentralAnnularSolar || type == kCentralTotalSolar ||
                         type == kCentralAnnularTotalSolar;
    const TerrestrialTime new_moon = Syzygy(std::stoi(row.at("lunation")), kNewMoon);
    const double delta_t = DeltaT(new_moon) / kMinutesPerDay;
    const EclipsePath path(new_moon, delta_t);
    EXPECT_EQ(path.CentreAt(path.Greatest()).has_value(), central);
    ASSERT_EQ(path.UmbralPhase().has_value(), type != kPartialSolar);
    if (type == kPartialSolar) continue;
    const auto [begin, end] = *path.UmbralPhase();
    bool any = false;
    for (int i = 0; i <= 20; ++i) {
      const UniversalTime instant = begin + (end - begin) * i / 20;
      const PathLimits limits = path.LimitsAt(instant);
      EXPECT_TRUE(central || !limits.north || !limits.south);
      errors.Add(limits.north, instant, delta_t);
      errors.Add(limits.south, instant, delta_t);
      any = any || limits.north || limits.south;
    }
    EXPECT_TRUE(any);
  }
  errors.distance.Print("limits from the edge of the umbra, squared", "square Earth radii");
  errors.seconds.Print("limits from the touch of the edge", "s");
  EXPECT_LT(errors.distance.Largest(), 1e-9);
  EXPECT_LT(errors.seconds.Largest(), 0.05);
}

// Left and right as seen from outside with the way of the centre line ahead.
TEST(EclipsePath, ItsLimitsLieOnEitherSideOfTheCentreAsFarApartAsTheStripIsWide) {
  ErrorStatistics width;
  for (const ReferenceRow& cells : ReadReferenceData("sky/solar_path.csv")) {
    const PathRow row(cells);
    if (row.Number("sun_alt") < 30) continue;
    const UniversalTime instant = row.Instant("ut_greatest");
    const auto centre = [&](double seconds) {
      return PointAt(row.path.CentreAt(instant + seconds * kSecond).value().place);
    };
    const Vector3 left = Unit(Cross(centre(0), centre(10) - centre(-10)));
    const PathLimits limits = row.path.LimitsAt(instant);
    const double north = Dot(left, PointAt(limits.north.value()) - centre(0)) * kKmPerEarthRadius;
    const double south = Dot(left, PointAt(limits.south.value()) - centre(0)) * kKmPerEarthRadius;
    EXPECT_GT(north, 0) << cells.at("n");
    EXPECT_LT(south, 0) << cells.at("n");
    width.Add(100 * ((north - south) / row.Number("width_plane_km") - 1));
  }
  width.Print("width between the limits", "%");
  EXPECT_LT(width.Largest(), 1.0);
}

}  // namespace
}  // namespace tarnwick
