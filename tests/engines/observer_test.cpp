#include "engines/ephemeris/observer.h"

#include <cmath>
#include <gtest/gtest.h>
#include <string>

#include "engines/ephemeris/earth_frame.h"
#include "engines/ephemeris/moon_sun_track.h"
#include "tests/error_statistics.h"
#include "tests/reference_data.h"
#include "tests/sky/eclipse_rows.h"

namespace tarnwick {
namespace {

// An instant of a row, in Terrestrial Time, with its delta T in days.
struct RowInstant {
  RowInstant(const ReferenceRow& row, const std::string& ut)
      : delta_t(DeltaTOf(row)), ajd_tt(NumberIn(row, ut) + delta_t) {}

  double delta_t;
  double ajd_tt;
};

double Degrees(double radians) { return std::remainder(radians / kDegree, 360); }

TEST(EarthFrame, TurnsWithSiderealTime) {
  ErrorStatistics errors;
  const auto add = [&](const std::string& file, const std::string& ut, const std::string& gast) {
    for (const ReferenceRow& row : ReadReferenceData(file)) {
      const RowInstant at(row, ut);
      const double found = ApparentSiderealTime(at.ajd_tt - at.delta_t, at.ajd_tt);
      errors.Add(3600 * Degrees(found - NumberIn(row, gast) * kDegree));
    }
  };
  add("sky/rise_set.csv", "ut_start", "gast_start");
  add("sky/solar_path.csv", "ut_greatest", "gast_greatest");
  add("sky/crescent.csv", "ut_conjunction", "gast_conjunction");
  errors.Print("sidereal time", "arcseconds");
  EXPECT_LT(errors.Largest(), 1.0);
}

TEST(Observer, SeesTheSunWhereItStands) {
  DirectionErrors errors;
  for (const ReferenceRow& row : ReadReferenceData("sky/solar_local.csv")) {
    const RowInstant at(row, "ut_max");
    const EarthFrame frame(at.ajd_tt, at.delta_t);
    const Observer observer = ObserverOf(row);
    const Vector3 sun = VectorsOf(PositionsAt(at.ajd_tt)).sun.value;
    errors.Add(observer.DirectionOf(observer.Topocentric(frame.FromEcliptic(sun))), row, "max");
  }
  errors.Judge();
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
    sublunar.Add(latitude - NumberIn(row, "sublunar_lat"));
    sublunar.Add(Degrees(std::atan2(moon.y, moon.x) - NumberIn(row, "sublunar_lon") * kDegree));
  }
  errors.Judge();
  sublunar.Print("sublunar point", "degrees");
  EXPECT_LT(sublunar.Largest(), 0.005);
}

}  // namespace
}  // namespace tarnwick
