#include "sky/certainty.h"

#include <gtest/gtest.h>
#include <string>
#include <utility>

#include "engines/date_engine.h"
#include "moon/phase_cache.h"
#include "sky/eclipse_course.h"
#include "sky/seen_eclipses.h"
#include "tests/sky/eclipse_rows.h"

namespace tarnwick {
namespace {

// With a larger delta T the Earth has turned less, so that the path lies further east.
TEST(Certainty, TellsWhatAnotherDeltaTWouldShow) {
  const struct {
    GeoPoint place;
    DateRecord date;
    std::string text;
  } cases[] = {
      {{38.49, 28.04}, {-584, 5, 28, 'J'}, "total; partial if delta T is 460 s more"},  // Sardis
      {{32.54, 44.42}, {-135, 4, 15, 'J'}, "total; partial if delta T is 310 s more"},  // Babylon
      {{36.36, 43.15}, {-762, 6, 15, 'J'}, "partial; total if delta T is 530 s more"},  // Nineveh
      {{37.97, 23.72}, {-430, 8, 3, 'J'}, "partial"},                                   // Athens
      {{48.78, 9.18}, {1999, 8, 11, 'G'}, "total"},                                     // Stuttgart
  };
  for (auto c : cases) {
    const UniversalTime midnight(euro_date_to_jdn(c.date) - 0.5);
    const Observer observer = ObserverAt(c.place);
    const auto found =
        FindSeenEclipse(SoughtEclipse::kSolar, observer, midnight, true, [] { return true; });
    ASSERT_TRUE(found && found->instant - midnight < 1) << c.text;
    const EclipseRecord record = FindPhaseEvent(found->at.lunation, found->at.phase).eclipse;
    EXPECT_EQ(CertaintyText(CertaintyOf(record, observer)), c.text);
  }
}

TEST(Certainty, WordsEverySide) {
  const std::pair<Certainty, std::string> cases[] = {
      {{kNotSeen, "partial", kNotSeen, 660}, "not seen; partial if delta T is 11 min less"},
      {{"total", "partial", "partial", 140}, "total; partial if delta T is 140 s less or more"},
      {{"partial", kNotSeen, "total", 660},
       "partial; not seen if delta T is 11 min less; total if it is 11 min more"},
      {{"annular", "annular", "annular", 660}, "annular"},
  };
  for (const auto& [certainty, text] : cases) EXPECT_EQ(CertaintyText(certainty), text);
}

}  // namespace
}  // namespace tarnwick
