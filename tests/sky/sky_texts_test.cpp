#include "sky/sky_texts.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

#include "calendars/date_processing.h"
#include "moon/syzyg.h"

namespace tarnwick {
namespace {

constexpr GeoPoint kBabylon{32.54, 44.42};
constexpr GeoPoint kAlert{82.5, -62.35};
constexpr GeoPoint kHonolulu{21.31, -157.86};

UniversalTime NoonAtGreenwich(const char* date) { return NowAsAJD(date, "12:00:00", 0); }

std::string Line(const TimedLine& line) {
  return line.what + " | " + line.times.local + " | " + line.times.main;
}

TEST(SkyTexts, SayWhereABodyStands) {
  const std::pair<BodyAtInstant, std::string> cases[] = {
      {{{}, {0.5, 1}, 0.51}, "28.6\u00b0 high, azimuth 57.3\u00b0"},
      {{{}, {-0.01, 1}, 0.004}, "on the horizon, azimuth 57.3\u00b0"},
      {{{}, {-0.0145, 1}, 0}, "on the horizon, azimuth 57.3\u00b0"},
      {{{}, {-0.5, 1}, -0.49}, "28.6\u00b0 below the horizon"},
  };
  for (const auto& [body, text] : cases) EXPECT_EQ(DirectionText(body), text);
}

// The day is that of local mean time, whatever the zone of the main window.
TEST(SkyTexts, TellTheDayOfThePlace) {
  const UniversalTime moment = NoonAtGreenwich("2024-03-05");
  const auto lines = DayLinesOf(moment, {kHonolulu, kCE, 0});
  EXPECT_EQ(LocalDate(moment, {kHonolulu, kCE, 0}), "2024-03-05 CE");
  EXPECT_EQ(LocalDate(moment - 0.2, {kHonolulu, kCE, 0}), "2024-03-04 CE");
  EXPECT_EQ(Line(lines[0]), "Sun rises | 06:16 | 16:48");
  EXPECT_EQ(Line(lines[2]), "Sun sets | 18:06 | 04:37");
  EXPECT_EQ(lines[2].times.dates, "2024-03-05 CE 18:06 local mean time\n2024-03-06 CE 04:37 GMT");
  const auto polar = DayLinesOf(NoonAtGreenwich("2024-06-21"), {kAlert, kCE, 0});
  EXPECT_EQ(Line(polar[0]), "Sun rises | - | -");
  EXPECT_EQ(Line(polar[1]), "Sun highest | 12:01 | 16:11");
}

TEST(SkyTexts, NameTheCrescents) {
  const std::int32_t lunation = LunationOf(NoonAtGreenwich("2024-03-20"));
  const CrescentText first = FirstCrescentText(lunation, {kBabylon, kCE, 0});
  EXPECT_EQ(first.named, "evening of 2024-03-11 CE, easily visible (A)");
  EXPECT_TRUE(first.details.starts_with(
      "evening of 2024-03-10 CE: sunset 18:04, moonset 18:15, best 18:09, arc of vision 3.3\u00b0, "
      "width 0.04', q -0.825: not visible (F)\nevening of 2024-03-11 CE: "))
      << first.details;
  EXPECT_EQ(LastCrescentText(lunation, {kBabylon, kJC, 0}).named,
            "morning of 2024-03-25 JC, easily visible (A)");
  const CrescentText polar =
      FirstCrescentText(LunationOf(NoonAtGreenwich("2024-06-20")), {kAlert, kCE, 0});
  EXPECT_EQ(polar.named, "not seen within three days of the new moon");
}

}  // namespace
}  // namespace tarnwick
