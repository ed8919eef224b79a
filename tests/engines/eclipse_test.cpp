#include "engines/ephemeris/eclipse.h"

#include <cmath>
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <iostream>
#include <map>
#include <string>
#include <vector>

#include "engines/ephemeris/moon_sun_track.h"
#include "engines/ephemeris/shadow_axis.h"
#include "engines/phase_engine.h"
#include "engines/phases.h"
#include "tests/error_statistics.h"
#include "tests/reference_data.h"

namespace tarnwick {
namespace {

constexpr double kSecondsPerDay = 86400;

double Syzygy(std::int32_t lunation, std::int32_t phase) {
  EclipseRecord record;
  return syzyg(lunation, phase, record);
}

Eclipse SolarEclipseAt(double instant) { return SolarEclipseNear(instant, PositionsAt(instant)); }
Eclipse LunarEclipseAt(double instant) { return LunarEclipseNear(instant, PositionsAt(instant)); }

Eclipse SolarEclipseOf(std::int32_t lunation) { return SolarEclipseAt(Syzygy(lunation, kNewMoon)); }
Eclipse LunarEclipseOf(std::int32_t lunation) {
  return LunarEclipseAt(Syzygy(lunation, kFullMoon));
}

// A cell as a number; an empty one is a phase that the eclipse does not have.
double Number(const ReferenceRow& row, const std::string& column) {
  const std::string& cell = row.at(column);
  return cell.empty() ? 0 : std::stod(cell);
}

// Every eclipse of 1900 to 2049 and every 25th of -3200 to 6000, from a Besselian solution on JPL
// DE431. Instants are AJD in TT, rounded to 1e-6 day; gamma and magnitudes are rounded to 1e-5.
// An eclipse nearer than this to the border of its type may fall on either side: margin in Earth
// radii (solar) or magnitude (lunar), and what 0.6" of the Moon's latitude come to.
constexpr double kUndecided = 0.0005;

struct CommonErrors {
  ErrorStatistics greatest;
  ErrorStatistics gamma;

  void Add(const Eclipse& eclipse, const ReferenceRow& row) {
    greatest.Add((eclipse.greatest - Number(row, "greatest_tt")) * kSecondsPerDay);
    gamma.Add(eclipse.gamma - Number(row, "gamma"));
  }

  void Judge(const std::string& kind) const {
    greatest.Print(kind + " greatest eclipse", "s");
    gamma.Print(kind + " gamma", "Earth radii");
    EXPECT_GT(greatest.Count(), 1190U);
    EXPECT_LT(greatest.Largest(), 0.7);
    EXPECT_LT(gamma.Largest(), 0.0002);
    EXPECT_LT(gamma.Rms(), 0.00005);
  }
};

void JudgeMagnitude(const ErrorStatistics& errors, const std::string& what) {
  errors.Print(what, "");
  EXPECT_LT(errors.Largest(), 0.0005);
  EXPECT_LT(errors.Rms(), 0.0001);
}

TEST(SolarEclipses, AgreeWithTheReference) {
  CommonErrors common;
  ErrorStatistics magnitude;
  int undecided_otherwise = 0;
  for (const ReferenceRow& row : ReadReferenceData("eclipses_solar.csv")) {
    SCOPED_TRACE(row.at("lunation"));
    const Eclipse eclipse = SolarEclipseOf(std::stoi(row.at("lunation")));
    const bool same_type = eclipse.type == std::stoi(row.at("type"));
    EXPECT_TRUE(same_type || Number(row, "margin") <= kUndecided) << "type " << eclipse.type;
    undecided_otherwise += same_type ? 0 : 1;
    if (eclipse.type == 0) continue;
    common.Add(eclipse, row);
    if (same_type) magnitude.Add(eclipse.magnitude - Number(row, "magnitude"));
  }
  common.Judge("solar");
  JudgeMagnitude(magnitude, "solar magnitude");
  std::cout << "[ accuracy ] border cases decided otherwise: " << undecided_otherwise << "\n";
  EXPECT_LE(undecided_otherwise, 5);
}

struct Duration {
  std::string column;
  double Eclipse::*minutes;
};
const Duration kDurations[] = {{"penumbral_min", &Eclipse::penumbral_minutes},
                               {"umbral_min", &Eclipse::umbral_minutes},
                               {"total_min", &Eclipse::total_minutes}};

// Where the Moon only just reaches a shadow, the least error of its latitude is many minutes.
constexpr double kGrazing = 0.02;

TEST(LunarEclipses, AgreeWithTheReference) {
  CommonErrors common;
  ErrorStatistics penumbral;
  ErrorStatistics umbral;
  std::map<std::string, ErrorStatistics> durations;
  int undecided_otherwise = 0;
  for (const ReferenceRow& row : ReadReferenceData("eclipses_lunar.csv")) {
    SCOPED_TRACE(row.at("lunation"));
    const Eclipse eclipse = LunarEclipseOf(std::stoi(row.at("lunation")));
    const double margin = Number(row, "margin");
    const bool same_type = eclipse.type == std::stoi(row.at("type"));
    EXPECT_TRUE(same_type || margin <= kUndecided) << "type " << eclipse.type;
    undecided_otherwise += same_type ? 0 : 1;
    if (eclipse.type == 0) continue;
    common.Add(eclipse, row);
    penumbral.Add(eclipse.penumbral_magnitude - Number(row, "penumbral_magnitude"));
    umbral.Add(eclipse.magnitude - Number(row, "umbral_magnitude"));
    if (margin <= kGrazing) continue;
    for (const auto& [column, minutes] : kDurations) {
      const double expected = Number(row, column);
      const bool has_phase = expected != 0;
      EXPECT_EQ(eclipse.*minutes != 0, has_phase) << column;
      if (has_phase) durations[column].Add(eclipse.*minutes - expected);
    }
  }
  common.Judge("lunar");
  JudgeMagnitude(penumbral, "penumbral magnitude");
  JudgeMagnitude(umbral, "umbral magnitude");
  std::cout << "[ accuracy ] border cases decided otherwise: " << undecided_otherwise << "\n";
  EXPECT_LE(undecided_otherwise, 5);
  for (const auto& [column, errors] : durations) {
    errors.Print(column, "minutes");
    EXPECT_LT(errors.Largest(), 0.2);
    EXPECT_LT(errors.Rms(), 0.03);
  }
}

// AJD of 1900 January 0 and 2050 January 1, within which the reference is complete.
constexpr double kCompleteFrom = 2415019.5;
constexpr double kCompleteTo = 2469807.5;

std::vector<std::int32_t> ReferenceLunations(const std::string& file_name) {
  std::vector<std::int32_t> lunations;
  for (const ReferenceRow& row : ReadReferenceData(file_name)) {
    const double greatest = Number(row, "greatest_tt");
    if (greatest < kCompleteFrom || greatest > kCompleteTo) continue;
    lunations.push_back(std::stoi(row.at("lunation")));
  }
  return lunations;
}

// Whatever `eclipse_of` finds among the lunations of these years and those beside them.
std::vector<std::int32_t> FoundLunations(const std::function<Eclipse(std::int32_t)>& eclipse_of) {
  std::vector<std::int32_t> lunations;
  for (std::int32_t n = -1240; n <= 625; ++n) {
    const Eclipse eclipse = eclipse_of(n);
    if (eclipse.type == 0) continue;
    if (eclipse.greatest < kCompleteFrom || eclipse.greatest > kCompleteTo) continue;
    lunations.push_back(n);
  }
  return lunations;
}

TEST(Eclipses, NoneIsMissedAndNoneIsInvented) {
  EXPECT_EQ(FoundLunations(SolarEclipseOf), ReferenceLunations("eclipses_solar.csv"));
  EXPECT_EQ(FoundLunations(LunarEclipseOf), ReferenceLunations("eclipses_lunar.csv"));
}

// The syzygy is only where the search begins: half an hour more or less leaves the eclipse alone.
TEST(Eclipses, DoNotDependOnTheExactSyzygy) {
  for (const std::int32_t lunation : {65, 171, 177, 535, -164}) {
    SCOPED_TRACE(lunation);
    const double new_moon = Syzygy(lunation, kNewMoon);
    const Eclipse eclipse = SolarEclipseAt(new_moon);
    for (const double shift : {-0.02, 0.02}) {
      const Eclipse shifted = SolarEclipseAt(new_moon + shift);
      EXPECT_EQ(shifted.type, eclipse.type);
      EXPECT_NEAR(shifted.greatest, eclipse.greatest, 1e-7);
      EXPECT_NEAR(shifted.gamma, eclipse.gamma, 1e-6);
      EXPECT_NEAR(shifted.magnitude, eclipse.magnitude, 1e-6);
    }
  }
}

// The Sun is 400 times as far as the Moon: what it is off moves the axis of the shadow by a 400th.
TEST(MoonSunTrack, StraysLessThanAMillionthOfTheEarthsRadius) {
  ErrorStatistics moon;
  ErrorStatistics sun;
  ErrorStatistics axis;
  for (std::int32_t lunation = -64316; lunation <= 49472; lunation += 911) {
    for (const std::int32_t phase : {kNewMoon, kFullMoon}) {
      const double syzygy = Syzygy(lunation, phase);
      const MoonSunTrack track(syzygy, VectorsOf(PositionsAt(syzygy)));
      for (const double offset : {-0.17, -0.09, -0.04, 0.03, 0.11, 0.16}) {
        const MoonAndSunVectors direct = VectorsOf(PositionsAt(syzygy + offset));
        const MoonAndSunVectors between = track.At(offset);
        moon.Add(Length(between.moon.value - direct.moon.value));
        sun.Add(Length(between.sun.value - direct.sun.value));
        if (phase != kNewMoon) continue;
        axis.Add(Length(ShadowAxisFoot(between).value - ShadowAxisFoot(direct).value));
      }
    }
  }
  moon.Print("interpolated Moon", "Earth radii");
  sun.Print("interpolated Sun", "Earth radii");
  axis.Print("interpolated axis of the shadow", "Earth radii");
  EXPECT_LT(moon.Largest(), 1e-6);
  EXPECT_LT(sun.Largest() / 400, 1e-6);
  EXPECT_LT(axis.Largest(), 1e-6);
}

bool IsSound(const Eclipse& eclipse, double syzygy) {
  if (eclipse.type == 0) return eclipse.greatest == 0 && eclipse.gamma == 0;
  return (IsSolarEclipse(eclipse.type) || IsLunarEclipse(eclipse.type)) &&
         std::abs(eclipse.greatest - syzygy) < 0.03 && std::abs(eclipse.gamma) < 1.6 &&
         std::abs(eclipse.magnitude) < 2 && eclipse.penumbral_magnitude >= 0 &&
         eclipse.penumbral_magnitude < 3 && eclipse.penumbral_minutes >= 0 &&
         eclipse.penumbral_minutes < 200 && eclipse.umbral_minutes >= 0 &&
         eclipse.umbral_minutes < 130 && eclipse.total_minutes >= 0 && eclipse.total_minutes < 60;
}

// Far from the span of the series the Moon keeps its habits: two to five eclipses of the Sun and as
// many of the Moon, penumbral ones included, in a year of 12.4 lunations.
TEST(Eclipses, GoOnSoberlyFarOutsideTheSpan) {
  for (const std::int32_t first : {-395000, -200000, -64900, 49500, 200000, 395000}) {
    SCOPED_TRACE(first);
    int solar = 0;
    int lunar = 0;
    for (std::int32_t n = first; n < first + 500; ++n) {
      const Eclipse at_new = SolarEclipseOf(n);
      const Eclipse at_full = LunarEclipseOf(n);
      EXPECT_TRUE(IsSound(at_new, Syzygy(n, kNewMoon))) << n;
      EXPECT_TRUE(IsSound(at_full, Syzygy(n, kFullMoon))) << n;
      solar += at_new.type != 0 ? 1 : 0;
      lunar += at_full.type != 0 ? 1 : 0;
    }
    EXPECT_NEAR(solar, 500 * 2.38 / 12.37, 8);
    EXPECT_NEAR(lunar, 500 * 2.41 / 12.37, 8);
  }
}

// Instants that are no syzygies must end too.
TEST(Eclipses, AnswerForAnyInstant) {
  for (double instant = -9.4e6; instant < 13.9e6; instant += 3089.7131) {
    SCOPED_TRACE(instant);
    const Eclipse solar = SolarEclipseAt(instant);
    const Eclipse lunar = LunarEclipseAt(instant);
    ASSERT_TRUE(std::isfinite(solar.greatest + solar.gamma + solar.magnitude));
    ASSERT_TRUE(std::isfinite(lunar.greatest + lunar.gamma + lunar.magnitude));
    ASSERT_TRUE(std::isfinite(lunar.penumbral_minutes + lunar.umbral_minutes));
  }
}

}  // namespace
}  // namespace tarnwick
