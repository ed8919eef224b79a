#include "engines/phase_engine.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

#include "engines/ephemeris/positions.h"
#include "engines/ephemeris/saros.h"
#include "tests/error_statistics.h"
#include "tests/record_bytes.h"
#include "tests/reference_data.h"

namespace tarnwick {
namespace {

constexpr double kDegree = std::numbers::pi / 180;
constexpr double kArcsecond = kDegree / 3600;
constexpr double kSecond = 1.0 / 86400;

double Turned(double radians) { return std::remainder(radians, 2 * std::numbers::pi); }

// check_values.csv: ten epochs (AJD, TT), degrees and km. The rows marked "series" are longer
// series, those marked "de431" the ephemeris that they and ours were fitted to. The bounds are the
// largest errors of ours against DE431 at 400,000 epochs, rounded up.
TEST(Positions, AgreeWithLongerSeriesAndWithTheEphemeris) {
  ErrorStatistics elongation;
  ErrorStatistics latitude;
  ErrorStatistics distance;
  for (const ReferenceRow& row : ReadReferenceData("check_values.csv")) {
    SCOPED_TRACE(row.at("source") + " " + row.at("jd_tt"));
    const auto value = [&](const char* column) { return std::stod(row.at(column)); };
    const auto [moon, sun] = PositionsAt(value("jd_tt"));
    const double moon_error = Turned(moon.longitude.value - value("moon_lon_deg") * kDegree);
    const double sun_error = Turned(sun.longitude.value - value("sun_lon_deg") * kDegree);
    elongation.Add((moon_error - sun_error) / kArcsecond);
    latitude.Add((moon.latitude.value - value("moon_lat_deg") * kDegree) / kArcsecond);
    distance.Add(moon.distance - value("moon_km"));
    EXPECT_NEAR(sun_error / kArcsecond, 0, 0.16);
    EXPECT_NEAR(sun.latitude.value / kArcsecond, value("sun_lat_deg") * 3600, 0.15);
    EXPECT_NEAR(sun.distance / kKmPerAu, value("sun_au"), 4e-6);
  }
  elongation.Print("elongation", "arcseconds");
  latitude.Print("latitude of the Moon", "arcseconds");
  distance.Print("distance of the Moon", "km");
  EXPECT_EQ(elongation.Count(), 20U);
  EXPECT_LT(elongation.Largest(), 0.4);
  EXPECT_LT(latitude.Largest(), 0.65);
  EXPECT_LT(distance.Largest(), 1.1);
}

TEST(Positions, RatesAreTheSlopesOfTheValues) {
  constexpr double kStep = 0.001;
  for (double t = 552283.0; t < 3912515.0; t += 33360.7) {
    SCOPED_TRACE(t);
    const auto [moon, sun] = PositionsAt(t);
    const auto [moon_before, sun_before] = PositionsAt(t - kStep);
    const auto [moon_after, sun_after] = PositionsAt(t + kStep);
    const auto slope = [](double after, double before) { return (after - before) / (2 * kStep); };
    const auto turn = [](const Position& after, const Position& before) {
      return Turned(after.longitude.value - before.longitude.value) / (2 * kStep);
    };
    EXPECT_NEAR(turn(moon_after, moon_before), moon.longitude.rate, 3e-7);
    EXPECT_NEAR(turn(sun_after, sun_before), sun.longitude.rate, 3e-7);
    EXPECT_NEAR(slope(moon_after.latitude.value, moon_before.latitude.value), moon.latitude.rate,
                3e-7);
    EXPECT_NEAR(slope(moon_after.distance, moon_before.distance), moon.distance_rate, 0.1);
    EXPECT_NEAR(slope(sun_after.distance, sun_before.distance), sun.distance_rate, 5);
  }
}

// phases.csv: AJD in TT, given to 1e-7 day, from JPL DE431.
TEST(Syzyg, IsWithinASecondOfTheEphemerisOver9200Years) {
  ErrorStatistics errors;
  EclipseRecord record;
  const char* const columns[] = {"new", "first_quarter", "full", "last_quarter"};
  for (const ReferenceRow& row : ReadReferenceData("phases.csv")) {
    const std::int32_t lunation = std::stoi(row.at("lunation"));
    for (std::int32_t phase = 0; phase < 4; ++phase) {
      const double instant = syzyg(lunation, phase, record);
      errors.Add((instant - std::stod(row.at(columns[phase]))) / kSecond);
      // Our own positions are in phase within a millisecond, or 4e-9 of the faster Moon.
      const auto [moon, sun] = PositionsAt(instant);
      EXPECT_NEAR(Turned(moon.longitude.value - sun.longitude.value - 90 * phase * kDegree), 0,
                  4e-9);
    }
  }
  errors.Print("phase instants", "seconds");
  EXPECT_EQ(errors.Count(), 2000U);
  EXPECT_LT(errors.Largest(), 0.55);
  EXPECT_LT(errors.Rms(), 0.15);
  EXPECT_LT(std::fabs(errors.Mean()), 0.1);
}

TEST(Syzyg, PhasesFollowOneAnotherAWeekApartFarBeyondTheRange) {
  EclipseRecord record;
  for (const std::int32_t first : {-400000, -64400, -64316, -1, 0, 16226, 49472, 49600, 400000}) {
    for (std::int32_t n = first; n < first + 20; ++n) {
      for (std::int32_t phase = 0; phase < 4; ++phase) {
        SCOPED_TRACE(testing::Message() << n << " " << phase);
        const double length = syzyg(n, phase + 1, record) - syzyg(n, phase, record);
        EXPECT_GT(length, 6.4);
        EXPECT_LT(length, 8.6);
      }
      EXPECT_EQ(syzyg(n, 4, record), syzyg(n + 1, 0, record));
    }
  }
}

TEST(Syzyg, AnswersAnyLunation) {
  EclipseRecord record;
  for (const std::int32_t n : {INT32_MIN, -100'000'000, 100'000'000, INT32_MAX}) {
    for (std::int32_t phase = 0; phase < 4; ++phase) {
      EXPECT_TRUE(std::isfinite(syzyg(n, phase, record))) << n;
      EXPECT_TRUE(std::isfinite(record.greatest));
    }
  }
}

// A record full of what was there before.
EclipseRecord Soiled() {
  std::array<std::byte, sizeof(EclipseRecord)> bytes{};
  bytes.fill(std::byte{0x55});
  return std::bit_cast<EclipseRecord>(bytes);
}

TEST(Syzyg, FillsTheRecordAndLeavesTheRestOfItZero) {
  EclipseRecord record = Soiled();
  syzyg(300, 0, record);  // the new moon of 2024-04-08
  EXPECT_EQ(record.lunation, 300);
  EXPECT_EQ(record.type, 3);
  EXPECT_EQ(record.saros, 139);
  EXPECT_NEAR(record.gamma, 0.3431, 0.0002);
  EXPECT_EQ(record.penumbral_magnitude, 0);
  EXPECT_EQ(record.total_minutes, 0);

  for (const auto& [n, phase] : {std::pair(301, 0), std::pair(300, 1), std::pair(300, 3)}) {
    record = Soiled();
    syzyg(n, phase, record);
    EclipseRecord none{};
    none.lunation = n;
    EXPECT_EQ(BytesOf(record), BytesOf(none)) << n << " " << phase;
  }
}

struct DeltaTValue {
  double year;
  double seconds;    // of the model's published tables or formulas at the year's middle
  double tolerance;  // seconds
};

TEST(DeltaT, FollowsObservationsAndTheLongTermParabola) {
  const DeltaTValue values[] = {
      {-2000.5, 20518.40 + 32.5 * (38.25 * 38.25 - 25.45 * 25.45), 0.01},
      {-720.5, 20518.40, 0.01},
      {1799.5, 18.4, 0.5},
      {1899.5, -1.9, 1},
      {1999.5, 63.83, 0.05},
      {2014.5, 67.64, 0.1},
      // The middle of the cubic between 2027 and 2827, from its values and slopes at both ends.
      {2426.5, (69.10 - 320 + 32.5 * 10.02 * 10.02) / 2 + 100 * (0.05 - 0.65 * 10.02), 0.01},
      {2827, -320 + 32.5 * 10.025 * 10.025, 0.01},
      {2899.5, -320 + 32.5 * 10.75 * 10.75, 0.01},
      {5999.5, -320 + 32.5 * 41.75 * 41.75, 0.01},
      // Between the knots, to half a unit of the last place of docs/astronomy.md.
      {-3200, 22 * 3600 + 39 * 60, 30},
      {-2000, 13 * 3600 + 3 * 60, 30},
      {-1000, 7 * 3600 + 3 * 60, 30},
      {0, 2 * 3600 + 56 * 60, 30},
      {500, 3600 + 33 * 60, 30},
      {1000, 24 * 60 + 21, 0.5},
      {1500, 4 * 60 + 51, 0.5},
      {1700, 14, 0.5},
      {1900, -1.4, 0.05},
      {2000, 64.0, 0.05},
      {2100, 60 + 41, 0.5},
      {3000, 3600 + 10 * 60, 30},
      {4000, 4 * 3600 + 11 * 60, 30},
      {6000, 15 * 3600 + 39 * 60, 30},
  };
  for (const DeltaTValue& value : values) {
    EXPECT_NEAR(deltat(value.year, kDeltaTModel) * 60, value.seconds, value.tolerance)
        << value.year;
  }
}

TEST(DeltaT, IsSmoothWhereItsPiecesMeet) {
  constexpr double kStep = 0.01;
  const auto seconds = [](double year) { return deltat(year - 0.5, kDeltaTModel) * 60; };
  for (const double year : {-720.0, 2027.0, 2827.0}) {
    const double before = (seconds(year) - seconds(year - kStep)) / kStep;
    const double after = (seconds(year + kStep) - seconds(year)) / kStep;
    EXPECT_NEAR(before, after, 0.01) << year;
  }
}

TEST(Saros, NumbersThePublishedSeries) {
  // 1999-08-11, 2017-08-21 (a saros later), 2024-04-08; lunar 2018-01-31, 2022-11-08.
  EXPECT_EQ(SolarSaros(-5), 145);
  EXPECT_EQ(SolarSaros(218), 145);
  EXPECT_EQ(SolarSaros(300), 139);
  EXPECT_EQ(LunarSaros(223), 124);
  EXPECT_EQ(LunarSaros(282), 136);
}

TEST(Longitudes, AreThoseOfThePositions) {
  double latitude = 0;
  double distance = 0;
  const auto [moon, sun] = PositionsAt(2451600.25);
  EXPECT_EQ(moonpos(55.25, latitude, distance), moon.longitude.value);
  EXPECT_EQ(latitude, moon.latitude.value);
  EXPECT_EQ(sun_app(2451600.25, distance), sun.longitude.value);
  EXPECT_NEAR(distance, 1, 0.02);
}

}  // namespace
}  // namespace tarnwick
