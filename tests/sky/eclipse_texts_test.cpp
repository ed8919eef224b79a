#include "sky/eclipse_texts.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

#include "engines/date_engine.h"
#include "engines/phases.h"
#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "sky/geo_point.h"

namespace tarnwick {
namespace {

constexpr GeoPoint kStuttgart{48.78, 9.18};
constexpr GeoPoint kNewYork{40.71, -74.01};
constexpr GeoPoint kSydney{-33.87, 151.21};
constexpr GeoPoint kAthens{37.97, 23.72};

EclipseRecord RecordOf(DateRecord date, std::int16_t phase) {
  const UniversalTime noon(euro_date_to_jdn(date));
  const double beyond_new_moon = phase == kNewMoon ? 3 : 0;
  return FindPhaseEvent(LunationOf(noon + beyond_new_moon), phase).eclipse;
}

EclipseTexts TextsOf(const EclipseRecord& record, const GeoPoint& place) {
  return EclipseTextsOf(record, {place, kCE, 60});
}

TEST(EclipseTexts, SayAsWhatItIsSeen) {
  struct Asked {
    GeoPoint place;
    DateRecord date;
    std::int16_t phase;
    std::size_t contacts;
  };
  const std::pair<Asked, std::string> cases[] = {
      {{kStuttgart, {1999, 8, 11}, kNewMoon, 5}, "Seen here as total, magnitude 1.028"},
      {{kNewYork, {1999, 8, 11}, kNewMoon, 4},
       "Seen here as partial, magnitude 0.461 at sunrise; magnitude 0.952 below the horizon"},
      {{kSydney, {1999, 8, 11}, kNewMoon, 0}, "No eclipse here: the Moon's shadow passes by"},
      {{kAthens, {2025, 9, 7}, kFullMoon, 7},
       "Seen here as total, umbral magnitude 1.362; begins below the horizon"},
      {{kAthens, {2018, 1, 31}, kFullMoon, 8},
       "Seen here as penumbral, penumbral magnitude 0.307 at moonrise; total below the horizon"},
      {{kNewYork, {2018, 7, 27}, kFullMoon, 7}, "Not seen here: the Moon is below the horizon"},
      {{kAthens, {2020, 6, 5}, kFullMoon, 3}, "Seen here as penumbral, penumbral magnitude 0.568"},
  };
  for (const auto& [asked, seen] : cases) {
    const EclipseTexts texts = TextsOf(RecordOf(asked.date, asked.phase), asked.place);
    EXPECT_EQ(texts.seen, seen);
    EXPECT_EQ(texts.contacts.size(), asked.contacts) << seen;
  }
}

std::string Line(const TimedLine& line) {
  return line.what + " | " + line.times.local + " | " + line.times.main + " | " + line.detail;
}

TEST(EclipseTexts, TellContactsInTheOrderOfTimeAndWhichAreSeen) {
  const EclipseTexts texts = TextsOf(RecordOf({1999, 8, 11, 'G'}, kNewMoon), kNewYork);
  ASSERT_EQ(texts.contacts.size(), 4U);
  EXPECT_EQ(Line(texts.contacts[0]),
            "partial phase begins | 03:46:35 | 09:42:37 | 14.1\u00b0 below the horizon");
  EXPECT_EQ(Line(texts.contacts[2]),
            "most seen, at sunrise | 05:05:59 | 11:02:01 | on the horizon, azimuth 68.8\u00b0");
  EXPECT_EQ(texts.contacts[2].times.dates,
            "1999-08-11 CE 05:05:59 local mean time\n1999-08-11 CE 11:02:01 GMT + 01:00");
  EXPECT_FALSE(texts.contacts[1].seen);
  EXPECT_TRUE(texts.contacts[2].seen);
}

TEST(EclipseTexts, TellHowSureAnOldEclipseIs) {
  const EclipseRecord thales = RecordOf({-584, 5, 28, 'J'}, kNewMoon);
  const EclipseTexts texts = TextsOf(thales, {38.49, 28.04});  // Sardis
  EXPECT_EQ(EclipseTitle(thales, {}),
            "Central total solar eclipse of -584-05-28 JC (-584, 585 BCE), saros 57");
  EXPECT_EQ(texts.certainty,
            "The clock is sure to +- 460 s. Here: total; partial if delta T is 460 s more");
  EXPECT_EQ(texts.contacts[0].times.local, "16:55 +- 8 min");
  const EclipseRecord recent = RecordOf({1999, 8, 11, 'G'}, kNewMoon);
  EXPECT_EQ(TextsOf(recent, kStuttgart).certainty, "The clock is sure to the second");
}

TEST(EclipseTexts, TellWhereAnEclipseIsGreatest) {
  const std::pair<DateRecord, std::string> cases[] = {
      {{1999, 8, 11, 'G'},
       "Greatest eclipse at 12:03:05 GMT + 01:00, 45.07 N 24.3 E: total for 2 min 23 s, path 112 "
       "km wide"},
      {{2003, 5, 31, 'G'},
       "Greatest eclipse at 05:08:18 GMT + 01:00, 66.57 N 24.46 W: annular for 3 min 37 s"},
      {{2018, 8, 11, 'G'}, "Greatest eclipse at 10:46:19 GMT + 01:00, magnitude 0.737"},
  };
  for (const auto& [date, text] : cases) {
    EXPECT_EQ(GreatestText(RecordOf(date, kNewMoon), {{}, kCE, 60}), text);
  }
}

}  // namespace
}  // namespace tarnwick
