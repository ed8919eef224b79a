#include "moon/syzyg.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "engines/checked_arithmetic.h"
#include "engines/phases.h"
#include "moon/phase_cache.h"
#include "tests/record_bytes.h"

namespace tarnwick {
namespace {

struct Lunations : testing::Test {
  Lunations() { ClearPhaseCache(); }
};

void ExpectPhase(const PhaseInEffect& found, int phase, bool exact) {
  EXPECT_EQ(found.phase, phase);
  EXPECT_EQ(found.exact, exact);
}

TEST_F(Lunations, CoverTheAcceptedRange) {
  EXPECT_NEAR(LunationBase().days, 2451550.1 + 0.159, 0.01);  // 2000 January 6, 18:14 UT
  EXPECT_EQ(LunationOf(UniversalTime(552283.0)), -64316);
  EXPECT_EQ(LunationOf(UniversalTime(3912515.0)), 49472);
}

// Every phase instant belongs to the phase and lunation that it begins, and the moment just before
// it to those before; 16227 is a lunation whose new moon falls into one year in Terrestrial Time
// and into the next in Universal Time, where delta T is another.
TEST_F(Lunations, BeginExactlyAtTheirNewMoons) {
  for (std::int32_t n = -64316; n <= 49472; n += n == 16224 ? 1 : 97) {
    if (n > 16224 && n < 16224 + 97) n = n < 16228 ? n : 16321;
    SCOPED_TRACE(n);
    for (std::int16_t phase = 0; phase < 4; ++phase) {
      const UniversalTime instant = PhaseTime(n, phase);
      EXPECT_EQ(LunationOf(instant), n);
      ExpectPhase(GetPhase(n, instant), phase, true);
      ExpectPhase(GetPhase(n, instant + 0.00006), phase, false);
    }
    const UniversalTime before(std::nextafter(PhaseTime(n, 0).days, 0));
    EXPECT_EQ(LunationOf(before), n - 1);
    ExpectPhase(GetPhase(n - 1, before), kLastQuarter, false);
  }
}

TEST_F(Lunations, GetPhaseTellsALunationThatDoesNotFit) {
  const UniversalTime moment = PhaseTime(100, 2);
  ExpectPhase(GetPhase(99, moment), -1, false);
  ExpectPhase(GetPhase(101, moment), -2, false);
  ExpectPhase(GetPhase(99, PhaseTime(100, kNewMoon)), -1, false);
  ExpectPhase(PhaseAt(100, Syzygy(100, 2)), 2, true);
}

TEST_F(Lunations, AnInstantIsTheSameNumberWhoeverAsks) {
  std::vector<UniversalTime> forward;
  forward.reserve(600);
  for (std::int32_t n = 0; n < 600; ++n) forward.push_back(PhaseTime(n, 2));
  for (std::int32_t n = 600; n-- > 0;) {
    EXPECT_EQ(PhaseTime(n, 2), forward[static_cast<std::size_t>(n)]);
  }
  for (const std::int32_t n : {7, 255, 256, 512}) {
    ClearPhaseCache();
    EclipseRecord uncached;
    const TerrestrialTime alone(syzyg(n, 2, uncached));
    EXPECT_EQ(Syzygy(n, 2), alone);
    EXPECT_EQ(BytesOf(FindPhaseEvent(n, 2).eclipse), BytesOf(uncached));
    EXPECT_EQ(PhaseTime(n, 2), forward[static_cast<std::size_t>(n)]);
  }
}

TEST_F(Lunations, EndFarBeyondTheRangeAndRefuseWhatDoesNotFit) {
  for (const double ajd : {-2.1e9, -9.5e6, -1e5, 4.5e6, 1.3e7, 2.1e9}) {
    const UniversalTime moment(ajd);
    const std::int32_t n = LunationOf(moment);
    EXPECT_LE(PhaseTime(n, 0), moment);
    EXPECT_GT(PhaseTime(n + 1, 0), moment);
    EXPECT_GE(GetPhase(n, moment).phase, 0);
  }
  const double infinity = std::numeric_limits<double>::infinity();
  for (const double moment : {1e12, -1e12, infinity, std::nan("")}) {
    EXPECT_THROW(LunationOf(UniversalTime(moment)), RuntimeError) << moment;
  }
  EXPECT_THROW(PhaseTime(INT32_MAX, 0), RuntimeError);
  EXPECT_THROW(GetPhase(INT32_MAX, UniversalTime(0)), RuntimeError);
}

TEST_F(Lunations, DeltaTIsConstantWithinAYear) {
  const UniversalTime first_day(2451544.5);  // 2000-01-01
  EXPECT_EQ(DeltaT(first_day + 0.6), DeltaT(first_day + 365));
  EXPECT_NE(DeltaT(first_day + 0.6), DeltaT(first_day + 367));
  EXPECT_EQ(DeltaT(first_day + 0.1), DeltaTForYear(2000));
}

TEST_F(Lunations, PositionsAreGivenFrom1600To2099) {
  double latitude = 0;
  EXPECT_EQ(MoonPosition(UniversalTime(2305447.4), latitude), kBeforePositions);
  EXPECT_GE(MoonPosition(UniversalTime(2305447.5), latitude), 0);
  EXPECT_GE(MoonPosition(UniversalTime(2488069.4), latitude), 0);
  EXPECT_EQ(MoonPosition(UniversalTime(2488069.5), latitude), kAfterPositions);
}

}  // namespace
}  // namespace tarnwick
