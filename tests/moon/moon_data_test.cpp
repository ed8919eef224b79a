#include "moon/moon_data.h"

#include <cmath>
#include <gtest/gtest.h>
#include <tuple>
#include <utility>

#include "engines/ephemeris/delta_t.h"
#include "moon/clock_error.h"
#include "moon/syzyg.h"

namespace tarnwick {
namespace {

TEST(AgeText, SplitsWholeMinutes) {
  const std::pair<double, const char*> ages[] = {
      {0, "0 days, 0 hrs, 0 mins"},
      {1, "1 day, 0 hrs, 0 mins"},
      {1 + 2 / 24.0 + 1.5 / 1440, "1 day, 2 hrs, 1 min"},
      {2 + 1 / 24.0 + 59.999 / 1440, "2 days, 1 hr, 59 mins"},
      {12 + 869.2 / 1440, "12 days, 14 hrs, 29 mins"},
  };
  for (const auto& [age, text] : ages) EXPECT_EQ(AgeText(age), text);
}

TEST(PhaseOfMoonText, ChangesAtItsThresholds) {
  const std::tuple<double, bool, const char*> cases[] = {
      {0.0004, true, "Dark moon"},
      {0.0005, true, "Dark moon (waxing)"},
      {0.00999, false, "Dark moon (waning)"},
      {0.01, false, "Crescent moon (waning)"},
      {0.4499, true, "Crescent moon (waxing)"},
      {0.45, true, "Half moon (waxing)"},
      {0.5499, false, "Half moon (waning)"},
      {0.55, true, "Gibbous moon (waxing)"},
      {0.99, true, "Full moon (waxing)"},
      {0.9994, false, "Full moon (waning)"},
      {0.9996, true, "Full moon"},
  };
  for (const auto& [fraction, waxing, text] : cases) {
    EXPECT_EQ(PhaseOfMoonText(fraction, waxing), text) << fraction;
  }
}

// The two ways agree where both can be taken: the Moon's uneven motion within a week and its
// latitude make a few hundredths.
TEST(MoonData, BothFractionsTellTheSameMoon) {
  for (double t = 2400000.0; t < 2480000.0; t += 1234.567) {
    const UniversalTime moment(t);
    const MoonData moon = MoonDataAt(moment);
    EXPECT_NEAR(moon.fraction, FractionFromPhases(moment, moon.lunation, moon.phase), 0.04) << t;
  }
}

TEST(MoonData, PhasesHaveTheirFractionsInEveryAge) {
  const double fractions[] = {0, 0.5, 1, 0.5};
  for (const std::int32_t lunation : {-60000, -4900, 0, 300, 1200, 1300, 49000}) {
    for (std::int16_t phase = 0; phase < 4; ++phase) {
      const UniversalTime instant = PhaseTime(lunation, phase);
      const MoonData moon = MoonDataAt(instant);
      EXPECT_EQ(moon.lunation, lunation);
      EXPECT_EQ(moon.phase, phase);
      EXPECT_EQ(moon.waxing, phase < 2);
      // Up to two minutes between Universal and Terrestrial Time.
      EXPECT_NEAR(moon.fraction, fractions[phase], 0.0006) << lunation << " " << phase;
      EXPECT_EQ(moon.age, instant - PhaseTime(lunation, 0));
      EXPECT_NEAR(moon.length, 29.53, 0.35);
    }
  }
}

TEST(MoonData, TheWayChangesAtTheEdgesOf1600To2099) {
  for (const double midnight : {2305447.5, 2488069.5}) {
    const double before = MoonDataAt(UniversalTime(midnight - 1e-6)).fraction;
    const double after = MoonDataAt(UniversalTime(midnight + 1e-6)).fraction;
    EXPECT_NE(before, after);
    EXPECT_NEAR(before, after, 0.04);
  }
}

// As the documentation tabulates it.
TEST(ErrorText, GrowsWithTheDistanceFromTheObservations) {
  const std::pair<double, const char*> years[] = {
      {-3200, "34 min"},     {-1000, "11 min"}, {0, "260 s"},    {500, "140 s"},
      {1000, "54 s"},        {1500, "21 s"},    {1700, "5.0 s"}, {1900, "0.1 s"},
      {2000, "below 0.1 s"}, {2100, "10 s"},    {3000, "110 s"}, {6000, "23 min"},
  };
  for (const auto& [year, text] : years) EXPECT_EQ(ErrorText(DeltaTError(year)), text) << year;
}

TEST(ClockErrorSuffix, AddsMinutesToInstantsFromOneMinuteUp) {
  EXPECT_EQ(ClockErrorSuffix(59.9), "");
  EXPECT_EQ(ClockErrorSuffix(60), " +- 1 min");
  EXPECT_EQ(ClockErrorSuffix(660), " +- 11 min");
}

}  // namespace
}  // namespace tarnwick
