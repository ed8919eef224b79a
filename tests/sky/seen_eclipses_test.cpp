#include "sky/seen_eclipses.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <vector>

#include "engines/date_engine.h"
#include "engines/phases.h"
#include "moon/lunation_range.h"
#include "moon/syzyg.h"
#include "sky/lunar_at_place.h"
#include "sky/solar_at_place.h"
#include "tests/sky/eclipse_rows.h"

namespace tarnwick {
namespace {

constexpr SoughtEclipse kAllSought[] = {SoughtEclipse::kAny, SoughtEclipse::kSolar,
                                        SoughtEclipse::kTotalSolar, SoughtEclipse::kUmbralLunar};

bool Always() { return true; }

UniversalTime MidnightOf(DateRecord date) { return UniversalTime(euro_date_to_jdn(date) - 0.5); }

TEST(SeenEclipses, FindsTheNeighboursOfADay) {
  using enum SoughtEclipse;
  const struct {
    double latitude, longitude;
    SoughtEclipse sought;
    DateRecord from;
    bool forward;
    DateRecord expected;
  } cases[] = {
      // Sardis, Babylon
      {38.49, 28.04, kTotalSolar, {-590, 1, 1, 'J'}, true, {-584, 5, 28, 'J'}},
      {32.54, 44.42, kTotalSolar, {-100, 1, 1, 'J'}, false, {-135, 4, 15, 'J'}},
      // Stuttgart
      {48.78, 9.18, kTotalSolar, {1900, 1, 1, 'G'}, true, {1999, 8, 11, 'G'}},
      {48.78, 9.18, kSolar, {1999, 8, 11, 'G'}, false, {1996, 10, 12, 'G'}},
      {48.78, 9.18, kSolar, {1999, 8, 12, 'G'}, true, {2003, 5, 31, 'G'}},
      {48.78, 9.18, kUmbralLunar, {1999, 8, 11, 'G'}, false, {1997, 9, 16, 'G'}},
      {48.78, 9.18, kUmbralLunar, {1999, 8, 11, 'G'}, true, {2000, 1, 21, 'G'}},
      // London
      {51.51, -0.13, kTotalSolar, {1715, 5, 3, 'G'}, false, {878, 10, 29, 'J'}},
      {51.51, -0.13, kTotalSolar, {1715, 5, 4, 'G'}, true, {2151, 6, 14, 'G'}},
  };
  for (const auto& c : cases) {
    const Observer observer = ObserverAt({c.latitude, c.longitude});
    const auto found = FindSeenEclipse(c.sought, observer, MidnightOf(c.from), c.forward, Always);
    ASSERT_TRUE(found) << c.expected.year;
    const double day = found->instant - MidnightOf(c.expected);
    EXPECT_TRUE(day >= 0 && day < 1) << c.expected.year << " " << day;
  }
}

std::vector<PhaseNumber> Chain(SoughtEclipse sought, const Observer& observer, UniversalTime begin,
                               UniversalTime end) {
  const bool forward = begin < end;
  std::vector<PhaseNumber> chain;
  UniversalTime moment = begin;
  while (const auto found = FindSeenEclipse(sought, observer, moment, forward, Always)) {
    if (forward ? found->instant > end : found->instant < end) break;
    chain.push_back(found->at);
    moment = found->instant;
    // From shortly before it is the first, on whichever side of new moon it is seen.
    const UniversalTime shortly = moment + (forward ? -0.001 : 0.001);
    EXPECT_EQ(FindSeenEclipse(sought, observer, shortly, forward, Always)->at, found->at);
  }
  return chain;
}

bool IsSeenAs(SoughtEclipse sought, std::int16_t phase, const EclipseRecord& record,
              const Observer& observer) {
  const EclipseCourse course = CourseOfEclipse(record);
  if (phase == kFullMoon) {
    const EclipseType seen = LunarEclipseAtPlace(record, course, observer).type_seen;
    if (sought == SoughtEclipse::kAny) return seen != kNotEclipsed;
    return sought == SoughtEclipse::kUmbralLunar && (seen == kPartialLunar || seen == kTotalLunar);
  }
  const SolarKind seen = SolarEclipseAtPlace(course, observer).kind_seen;
  if (sought == SoughtEclipse::kTotalSolar) return seen == SolarKind::kTotal;
  return sought != SoughtEclipse::kUmbralLunar && seen != SolarKind::kNone;
}

std::vector<PhaseNumber> AllSeen(SoughtEclipse sought, const Observer& observer, std::int32_t begin,
                                 std::int32_t end) {
  std::vector<PhaseNumber> all;
  for (std::int32_t lunation = begin; lunation < end; ++lunation) {
    for (const std::int16_t phase : {kNewMoon, kFullMoon}) {
      const EclipseRecord record = EclipseOf(lunation, phase);
      if (record.type == kNotEclipsed) continue;
      if (IsSeenAs(sought, phase, record, observer)) all.push_back({lunation, phase});
    }
  }
  return all;
}

// Of fifty years, whose ends are no eclipses, at Tromso, where Sun and Moon graze the horizon, and
// at Babylon.
TEST(SeenEclipses, MissesNoneEitherWay) {
  constexpr std::int32_t kBegin = 0;
  constexpr std::int32_t kEnd = 619;
  const UniversalTime begin = PhaseTime(kBegin, kNewMoon) - 2;
  const UniversalTime end = PhaseTime(kEnd, kNewMoon) - 2;
  std::size_t total = 0;
  for (const Observer& observer : {ObserverAt({69.65, 18.96}), ObserverAt({32.54, 44.42})}) {
    for (const SoughtEclipse sought : kAllSought) {
      std::vector<PhaseNumber> expected = AllSeen(sought, observer, kBegin, kEnd);
      total += expected.size();
      EXPECT_EQ(Chain(sought, observer, begin, end), expected);
      std::ranges::reverse(expected);
      EXPECT_EQ(Chain(sought, observer, end, begin), expected);
    }
  }
  EXPECT_GT(total, 250u);
}

TEST(SeenEclipses, AreFoundWithinTheRangeAlone) {
  const Observer babylon = ObserverAt({32.54, 44.42});
  for (const bool forward : {true, false}) {
    const UniversalTime inner = PhaseTime(forward ? kLastLunation : kFirstLunation, kNewMoon);
    const UniversalTime outer = inner + (forward ? 1e5 : -1e5);
    for (const SoughtEclipse sought : kAllSought) {
      EXPECT_FALSE(FindSeenEclipse(sought, babylon, outer, forward, Always));
      const auto last = FindSeenEclipse(sought, babylon, outer, !forward, Always);
      ASSERT_TRUE(last);
      EXPECT_TRUE(last->at.lunation >= kFirstLunation && last->at.lunation <= kLastLunation);
      EXPECT_FALSE(FindSeenEclipse(sought, babylon, last->instant, forward, Always));
    }
  }
}

}  // namespace
}  // namespace tarnwick
