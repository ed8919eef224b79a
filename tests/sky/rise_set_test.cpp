#include "sky/rise_set.h"

#include <cstddef>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/sky/reference_row.h"

namespace tarnwick {
namespace {

constexpr double kDeltaT = 69.2 / kSecondsPerDay;

TEST(NextEvent, IsThatOfTheReference) {
  const struct {
    Body body;
    SkyEvent event;
    std::string name;
    std::string rate;
  } kColumns[] = {
      {Body::kSun, SkyEvent::kRising, "ut_sunrise", "rate_sunrise"},
      {Body::kSun, SkyEvent::kSetting, "ut_sunset", "rate_sunset"},
      {Body::kSun, SkyEvent::kTransit, "ut_sun_transit", ""},
      {Body::kMoon, SkyEvent::kRising, "ut_moonrise", "rate_moonrise"},
      {Body::kMoon, SkyEvent::kSetting, "ut_moonset", "rate_moonset"},
      {Body::kMoon, SkyEvent::kTransit, "ut_moon_transit", ""},
  };
  const std::vector<ReferenceRow> rows = ReadReferenceData("sky/rise_set.csv");
  for (const auto& column : kColumns) {
    EventErrors errors;
    for (const ReferenceRow& row : rows) {
      const UniversalTime start(NumberIn(row, "ut_start"));
      errors.Add(NextEvent(column.body, column.event, ObserverOf(row), start, DeltaTOf(row)), row,
                 column.name, column.rate);
    }
    errors.Judge(column.name);
  }
}

TEST(SkyDay, CountsRisingsAndSettings) {
  constexpr double kMarch = 2460383.5;     // 2024-03-14
  constexpr double kJune = 2460482.5;      // 2024-06-21
  constexpr double kDecember = 2460665.5;  // 2024-12-21
  const struct {
    std::string what;
    Body body;
    double latitude;
    double start;
    int days;
    std::size_t risings, settings, transits;
  } kCases[] = {
      {"the Sun rises once at the North Pole", Body::kSun, 90, kMarch, 12, 1, 0, 12},
      {"the Sun sets once at the South Pole", Body::kSun, -90, kMarch, 12, 0, 1, 12},
      {"midnight sun", Body::kSun, 69.65, kJune, 3, 0, 0, 3},
      {"polar night", Body::kSun, 69.65, kDecember, 3, 0, 0, 3},
      {"a month of the Moon at the North Pole", Body::kMoon, 90, kJune, 27, 1, 1, 26},
      {"a month of the Moon on the equator", Body::kMoon, 0, kJune, 30, 29, 29, 29},
  };
  for (const auto& c : kCases) {
    const Observer observer(c.latitude * kDegree, 0);
    const auto count = [&](SkyEvent event) {
      std::size_t sum = 0;
      for (int day = 0; day < c.days; ++day) {
        sum += SkyDay(UniversalTime(c.start + day), kDeltaT).Find(c.body, event, observer).size();
      }
      return sum;
    };
    EXPECT_EQ(count(SkyEvent::kRising), c.risings) << c.what;
    EXPECT_EQ(count(SkyEvent::kSetting), c.settings) << c.what;
    EXPECT_EQ(count(SkyEvent::kTransit), c.transits) << c.what;
  }
}

// Towards the polar circle the night of midsummer becomes shorter and shorter, then there is none:
// no night may be missed for being short, wherever in the day it falls.
TEST(SkyDay, MissesNoShortNight) {
  for (const double start : {2460482.0, 2460482.4, 2460482.475}) {
    const SkyDay day(UniversalTime(start), kDeltaT);
    double shortest = 1;
    int bright_nights = 0;
    for (int i = 0; i < 400; ++i) {
      const Observer observer((65.5 + i * 0.001) * kDegree, 0);
      const auto sunset = day.Find(Body::kSun, SkyEvent::kSetting, observer);
      const auto sunrise = day.Find(Body::kSun, SkyEvent::kRising, observer);
      ASSERT_EQ(sunset.size(), sunrise.size());
      if (sunset.empty()) {
        ++bright_nights;
        continue;
      }
      EXPECT_EQ(bright_nights, 0) << start << " " << i;
      EXPECT_LT(sunrise[0] - sunset[0], shortest) << start << " " << i;
      shortest = sunrise[0] - sunset[0];
    }
    EXPECT_GT(bright_nights, 0) << start;
    EXPECT_LT(shortest * kMinutesPerDay, 15) << start;
  }
}

}  // namespace
}  // namespace tarnwick
