#include "engines/ephemeris/observer.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <string>

#include "engines/ephemeris/earth_frame.h"
#include "engines/ephemeris/moon_sun_track.h"
#include "engines/time_units.h"
#include "tests/error_statistics.h"
#include "tests/reference_data.h"

namespace tarnwick {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

// An instant of a row, in Terrestrial Time, with its delta T in days.
struct RowInstant {
  RowInstant(const ReferenceRow& row, const std::string& ut)
      : delta_t(std::stod(row.at("delta_t")) / kSecondsPerDay),
        ajd_tt(std::stod(row.at(ut)) + delta_t) {}

  double delta_t;
  double ajd_tt;
};

Observer ObserverOf(const ReferenceRow& row) {
  return {std::stod(row.at("lat")) * kDegree, std::stod(row.at("lon")) * kDegree};
}

double Degrees(double radians) { return std::remainder(radians / kDegree, 360); }

TEST(EarthFrame, TurnsWithSiderealTime) {
  ErrorStatistics errors;
  const auto add = [&](const std::string& file, const std::string& ut, const std::string& gast) {
    for (const ReferenceRow& row : ReadReferenceData(file)) {
      const RowInstant at(row, ut);
      const double found = ApparentSiderealTime(at.ajd_tt - at.delta_t, at.ajd_tt);
      errors.Add(3600 * Degrees(found - std::stod(row.at(gast)) * kDegree));
    }
  };
  add("sky/rise_set.csv", "ut_start", "gast_start");
  add("sky/solar_path.csv", "ut_greatest", "gast_greatest");
  add("sky/crescent.csv", "ut_conjunction", "gast_conjunction");
  errors.Print("sidereal time", "arcseconds");
  EXPECT_LT(errors.Largest(), 1.0);
}

struct DirectionErrors {
  void Add(const Horizontal& found, const ReferenceRow& row, const std::string& phase) {
    const double height = std::stod(row.at("alt_" + phase));
    altitude.Add(Degrees(found.altitude) - height);
    azimuth.Add(std::remainder(Degrees(found.azimuth) - std::stod(row.at("az_" + phase)), 360) *
                std::cos(height * kDegree));
  }
  ErrorStatistics altitude;
  ErrorStatistics azimuth;
};

TEST(Observer, SeesTheSunWhereItStands) {
  DirectionErrors errors;
  for (const ReferenceRow& row : ReadReferenceData("sky/solar_local.csv")) {
    const RowInstant at(row, "ut_max");
    const EarthFrame frame(at.ajd_tt, at.delta_t);
    const Observer observer = ObserverOf(row);
    const Vector3 sun = VectorsOf(PositionsAt(at.ajd_tt)).sun.value;
    errors.Add(observer.DirectionOf(observer.Topocentric(frame.FromEcliptic(sun))), row, "max");
  }
  errors.altitude.Print("altitude of the Sun", "degrees");
  errors.azimuth.Print("azimuth of the Sun x cos(altitude)", "degrees");
  EXPECT_LT(errors.altitude.Largest(), 0.004);
  EXPECT_LT(errors.azimuth.Largest(), 0.005);
}

TEST(Observer, SeesTheMoonWhereItStands) {
  DirectionErrors errors;
  ErrorStatistics sublunar;
  for (const ReferenceRow& row : ReadReferenceData("sky/lunar_local.csv")) {
    const RowInstant at(row, "ut_greatest");
    const EarthFrame frame(at.ajd_tt, at.delta_t);
    const Observer observer = ObserverOf(row);
    const Vector3 moon = frame.FromEcliptic(VectorsOf(PositionsAt(at.ajd_tt)).moon.value);
    errors.Add(observer.DirectionOf(observer.Topocentric(moon)), row, "greatest");
    const double latitude = std::asin(moon.z / Length(moon)) / kDegree;
    sublunar.Add(latitude - std::stod(row.at("sublunar_lat")));
    sublunar.Add(Degrees(std::atan2(moon.y, moon.x) - std::stod(row.at("sublunar_lon")) * kDegree));
  }
  errors.altitude.Print("altitude of the Moon", "degrees");
  errors.azimuth.Print("azimuth of the Moon x cos(altitude)", "degrees");
  sublunar.Print("sublunar point", "degrees");
  EXPECT_LT(errors.altitude.Largest(), 0.004);
  EXPECT_LT(errors.azimuth.Largest(), 0.005);
  EXPECT_LT(sublunar.Largest(), 0.005);
}

}  // namespace
}  // namespace tarnwick
