#include "moon/clock_error.h"

#include <gtest/gtest.h>
#include <utility>

#include "engines/ephemeris/delta_t.h"

namespace tarnwick {
namespace {

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
