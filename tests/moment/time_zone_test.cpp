#include "moment/time_zone.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(TimeZones, EveryItemReadsBackAsItsHalfHours) {
  for (int i = 0; i < kTimeZoneCount; ++i) {
    EXPECT_EQ(TimeZoneOffset(TimeZoneText(i)), 30 * (i - kGmtTimeZone)) << TimeZoneText(i);
  }
}

TEST(TimeZones, ItemsAreWrittenWithSignAndTwoDigits) {
  EXPECT_EQ(TimeZoneText(0), "GMT - 12:00");
  EXPECT_EQ(TimeZoneText(23), "GMT - 00:30");
  EXPECT_EQ(TimeZoneText(24), "GMT");
  EXPECT_EQ(TimeZoneText(48), "GMT + 12:00");
  EXPECT_EQ(TimeZoneOffset("Greenwich"), 0);
}

}  // namespace
}  // namespace tarnwick
