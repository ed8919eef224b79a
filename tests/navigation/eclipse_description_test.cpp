#include "navigation/eclipse_description.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using Lines = std::vector<std::string>;

// 01:30 of some day.
constexpr LocalCJD kCJD(2451545 + 1.5 / 24);

EclipseRecord Eclipse(EclipseType type, double penumbral, double umbral, double total) {
  EclipseRecord record{};
  record.lunation = -17;
  record.saros = 124;
  record.type = type;
  record.penumbral_minutes = penumbral;
  record.umbral_minutes = umbral;
  record.total_minutes = total;
  return record;
}

TEST(EclipseDescription, OfATotalLunarEclipse) {
  const Lines lines = EclipseLines(Eclipse(kTotalLunar, 157, 106.25, 30.75), kCJD);
  EXPECT_EQ(lines, (Lines{"Total lunar eclipse", "Lunation number = -17", "Saros number = 124",
                          "Penumbral phase starts 22:53 and lasts 5h 14m",
                          "Umbral phase starts 23:43 and lasts 3h 32m",
                          "Total phase starts 00:59 and lasts 1h 2m"}));
  EXPECT_EQ(EclipseCaption({"1", "2", "3", "four"}), "1\r\n2\r\n3\r\nfour.\r\n");
  EXPECT_EQ(EclipseSentence({"one", "two"}), "one, two.");
}

TEST(EclipseDescription, HasALineForEachPhaseRoundedHalfToEven) {
  const std::pair<EclipseRecord, Lines> cases[] = {
      {Eclipse(kPartialLunar, 30, 20, 0),
       {"Penumbral phase starts 01:00 and lasts 1h 0m",
        "Umbral phase starts 01:10 and lasts 0h 40m"}},
      {Eclipse(kPenumbralLunar, 30.25, 0, 0), {"Penumbral phase starts 00:59 and lasts 1h 0m"}},
      {Eclipse(kPenumbralLunar, 30.75, 0, 0), {"Penumbral phase starts 00:59 and lasts 1h 2m"}},
      {Eclipse(kNonCentralAnnularTotalSolar, 0, 0, 0), {}},
  };
  for (const auto& [eclipse, phases] : cases) {
    const Lines lines = EclipseLines(eclipse, kCJD);
    EXPECT_EQ(Lines(lines.begin() + 3, lines.end()), phases);
  }
}

TEST(EclipseDescription, TruncatesTheTime) {
  const std::pair<double, const char*> rows[] = {
      {0, "00:00:00"},
      {(21 * 3600 + 5 * 60 + 59.9) / 86400, "21:05:59"},
      {(21 * 3600 + 5 * 60 + 59.9999) / 86400, "21:06:00"},
      {0.999999, "23:59:59"},
      {1 - 1e-8, "23:59:59"},
      {1 - 1e-10, "23:59:59"},
      {1 - 1.05e-8, "23:59:59"},
      {1, "XX:XX:XX"},
      {-1e-9, "XX:XX:XX"},
  };
  for (const auto& [fraction, text] : rows) EXPECT_EQ(TruncatedTimeText(fraction, true), text);
  EXPECT_EQ(TruncatedTimeText((21 * 3600 + 5 * 60 + 59.9) / 86400, false), "21:05");
  EXPECT_EQ(TruncatedTimeText(1, false), "XX:XX:XX");
}

TEST(EclipseDescription, CountsDaysOfADuration) {
  EXPECT_EQ(EclipseDurationText(0), "0h 0m");
  EXPECT_EQ(EclipseDurationText(45), "0h 45m");
  EXPECT_EQ(EclipseDurationText(1439), "23h 59m");
  EXPECT_EQ(EclipseDurationText(1440), "1d 0h 0m");
  EXPECT_EQ(EclipseDurationText(1443), "1d 0h 3m");
  EXPECT_EQ(EclipseDurationText(3005), "2d 2h 5m");
}

}  // namespace
}  // namespace tarnwick
