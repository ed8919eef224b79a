#include "navigation/target.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "calendars/date_processing.h"
#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "tests/reference_data.h"

namespace tarnwick {
namespace {

using Texts = std::vector<std::string>;

bool Always() { return true; }

UniversalTime MomentOf(const std::string& date) { return NowAsAJD(date, "00:00:00", 0); }

// "2024-01-25 17:54"
std::string MinuteText(UniversalTime moment) {
  const DayAndTime split = SplitCJD(AJDToCJD(moment, 0));
  return DateText(CivilDateOf(split.day_number.value)) + " " + TimeOfDayText(split.fraction, false);
}

std::string DayText(UniversalTime moment) { return MinuteText(moment).substr(0, 10); }

Texts Reversed(Texts texts) {
  std::reverse(texts.begin(), texts.end());
  return texts;
}

struct Here {
  PhaseNumber at;
  bool exact = false;
};

Here PhaseHere(UniversalTime moment) {
  const std::int32_t lunation = LunationOf(moment);
  const PhaseInEffect in_effect = GetPhase(lunation, moment);
  return {{lunation, in_effect.phase}, in_effect.exact};
}

// `count` phases, each searched from the one before.
std::vector<UniversalTime> PhasesFrom(UniversalTime moment, int target, bool forward,
                                      std::size_t count) {
  std::vector<UniversalTime> found;
  while (found.size() < count) {
    const Here here = PhaseHere(moment);
    const PhaseNumber next = FindPhase(target, forward, here.at, here.exact);
    moment = PhaseTime(next.lunation, next.phase);
    found.push_back(moment);
  }
  return found;
}

// The days of `count` eclipses, each searched from the greatest phase of the one before.
Texts EclipsesFrom(UniversalTime moment, int target, bool forward, std::size_t count) {
  Texts days;
  std::optional<FoundEclipse> shown;
  while (days.size() < count) {
    shown = FindEclipse(
        target, forward, PhaseHere(moment).at,
        [&](const FoundEclipse& eclipse) { return !shown || eclipse.at != shown->at; }, Always);
    moment = GreatestEclipse(shown->record);
    days.push_back(DayText(moment));
  }
  return days;
}

TEST(Targets, NameTheirPhase) {
  EXPECT_EQ(kTargets[1].text, "Dark moon");
  EXPECT_EQ(kTargets[kSameSarosTarget].text, "Eclipse in same saros series");
  EXPECT_EQ(kTargets[kCoincidenceTarget].text, "Coincidence of 1sts of month");
  EXPECT_EQ(kTargets[kFirstBlankTarget].text, "");
  EXPECT_EQ(kTargets[kSecondBlankTarget].text, "");
  const std::int16_t phases[] = {2, 0, 1, 3};
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(kTargets[i].phase, phases[i]);
}

struct Instant {
  std::string date;
  std::string time;
};

// By the almanac, to the minute.
void ExpectInstants(const std::vector<UniversalTime>& found, const std::vector<Instant>& expected) {
  ASSERT_EQ(found.size(), expected.size());
  for (std::size_t i = 0; i < found.size(); ++i) {
    const UniversalTime moment = NowAsAJD(expected[i].date, expected[i].time, 0);
    EXPECT_NEAR(found[i] - moment, 0, 1.1 / 1440)
        << MinuteText(found[i]) << " " << expected[i].date;
  }
}

TEST(Targets, FullMoonsOf2024) {
  std::vector<Instant> moons{
      {"2024-01-25", "17:54:00"}, {"2024-02-24", "12:30:00"}, {"2024-03-25", "07:00:00"},
      {"2024-04-23", "23:49:00"}, {"2024-05-23", "13:53:00"}, {"2024-06-22", "01:08:00"},
      {"2024-07-21", "10:17:00"}, {"2024-08-19", "18:26:00"}, {"2024-09-18", "02:34:00"},
      {"2024-10-17", "11:26:00"}, {"2024-11-15", "21:28:00"}, {"2024-12-15", "09:02:00"}};
  ExpectInstants(PhasesFrom(MomentOf("2024-01-01"), kFullMoonTarget, true, 12), moons);
  std::reverse(moons.begin(), moons.end());
  ExpectInstants(PhasesFrom(MomentOf("2025-01-01"), kFullMoonTarget, false, 12), moons);
}

TEST(Targets, QuartersOneAfterTheOther) {
  std::vector<Instant> quarters{{"2024-01-04", "03:30:00"}, {"2024-01-11", "11:57:00"},
                                {"2024-01-18", "03:53:00"}, {"2024-01-25", "17:54:00"},
                                {"2024-02-02", "23:18:00"}, {"2024-02-09", "22:59:00"}};
  ExpectInstants(PhasesFrom(MomentOf("2024-01-01"), kQuarterTarget, true, 6), quarters);
  std::reverse(quarters.begin(), quarters.end());
  ExpectInstants(PhasesFrom(MomentOf("2024-02-10"), kQuarterTarget, false, 6), quarters);
}

// In lunation 10, for each phase in effect: where the search arrives, forward, back, and back from
// the very instant.
TEST(Targets, PhasesFromEveryPhase) {
  struct Row {
    int target;
    std::int16_t phase;
    PhaseNumber forward, back, back_from_instant;
  };
  const Row rows[] = {
      {0, 1, {10, 2}, {9, 2}, {9, 2}},   {0, 2, {11, 2}, {10, 2}, {9, 2}},
      {0, 3, {11, 2}, {10, 2}, {10, 2}}, {1, 0, {11, 0}, {10, 0}, {9, 0}},
      {1, 3, {11, 0}, {10, 0}, {10, 0}}, {2, 0, {10, 1}, {9, 1}, {9, 1}},
      {2, 1, {11, 1}, {10, 1}, {9, 1}},  {3, 2, {10, 3}, {9, 3}, {9, 3}},
      {3, 3, {11, 3}, {10, 3}, {9, 3}},  {4, 0, {10, 1}, {10, 0}, {9, 3}},
      {4, 2, {10, 3}, {10, 2}, {10, 1}}, {4, 3, {11, 0}, {10, 3}, {10, 2}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::to_string(row.target) + " from phase " + std::to_string(row.phase));
    const PhaseNumber at{10, row.phase};
    EXPECT_EQ(FindPhase(row.target, true, at, false), row.forward);
    EXPECT_EQ(FindPhase(row.target, true, at, true), row.forward);
    EXPECT_EQ(FindPhase(row.target, false, at, false), row.back);
    EXPECT_EQ(FindPhase(row.target, false, at, true), row.back_from_instant);
  }
}

TEST(Targets, AcceptTheirEclipses) {
  // A mark for each type, 0 to 11.
  const std::string accepted[] = {".xxxxxxxxxx.", "........xxx.", "..........x.", ".........xx.",
                                  ".xxxxxxx....", "...xx.xx....", "..x..xxx...."};
  for (int row = 0; row < 7; ++row) {
    std::string marks;
    for (int type = 0; type < 12; ++type) {
      marks += AcceptsEclipse(kAnyEclipseTarget + row, type) ? 'x' : '.';
    }
    EXPECT_EQ(marks, accepted[row])
        << kTargets[static_cast<std::size_t>(row) + kAnyEclipseTarget].text;
  }
  for (const int target : {kQuarterTarget, kFirstBlankTarget, kSameSarosTarget}) {
    for (int type = 0; type < 12; ++type) EXPECT_FALSE(AcceptsEclipse(target, type));
  }
}

TEST(Targets, EclipsesOneAfterTheOther) {
  struct Chain {
    int target;
    std::string before, after;
    Texts days;
  };
  const Chain chains[] = {
      {kTotalSolarTarget,
       "1999-03-01",
       "2024-05-01",
       {"1999-08-11", "2001-06-21", "2002-12-04", "2003-11-23", "2005-04-08", "2006-03-29",
        "2008-08-01", "2009-07-22", "2010-07-11", "2012-11-13", "2013-11-03", "2015-03-20",
        "2016-03-09", "2017-08-21", "2019-07-02", "2020-12-14", "2021-12-04", "2023-04-20",
        "2024-04-08"}},
      {kTotalSolarTarget + 1,
       "2021-01-01",
       "2026-03-01",
       {"2021-06-10", "2023-04-20", "2023-10-14", "2024-10-02", "2026-02-17"}},
      {kSolarEclipseTarget,
       "2024-01-01",
       "2026-01-01",
       {"2024-04-08", "2024-10-02", "2025-03-29", "2025-09-21"}},
      {kLunarEclipseTarget,
       "2023-01-01",
       "2026-01-01",
       {"2023-05-05", "2023-10-28", "2024-03-25", "2024-09-18", "2025-03-14", "2025-09-07"}},
      {kLunarEclipseTarget + 1,
       "2018-01-01",
       "2026-01-01",
       {"2018-01-31", "2018-07-27", "2019-01-21", "2021-05-26", "2022-05-16", "2022-11-08",
        "2025-03-14", "2025-09-07"}},
      {kLunarEclipseTarget + 2,
       "2023-01-01",
       "2026-01-01",
       {"2023-10-28", "2024-09-18", "2025-03-14", "2025-09-07"}},
      {kAnyEclipseTarget,
       "2024-01-01",
       "2026-01-01",
       {"2024-03-25", "2024-04-08", "2024-09-18", "2024-10-02", "2025-03-14", "2025-03-29",
        "2025-09-07", "2025-09-21"}},
  };
  for (const Chain& chain : chains) {
    SCOPED_TRACE(kTargets[static_cast<std::size_t>(chain.target)].text);
    const std::size_t count = chain.days.size();
    EXPECT_EQ(EclipsesFrom(MomentOf(chain.before), chain.target, true, count), chain.days);
    EXPECT_EQ(EclipsesFrom(MomentOf(chain.after), chain.target, false, count),
              Reversed(chain.days));
  }
}

// Every eclipse of ten years is what the searches from each phase before it find next, and those
// after it find last; its own phase, at its instant, counts as reached.
TEST(Targets, EclipsesFromEveryPhase) {
  for (const int target : {kAnyEclipseTarget, kLunarEclipseTarget, kSolarEclipseTarget}) {
    for (std::int32_t n = 240; n < 360; ++n) {
      for (std::int16_t phase = 0; phase < 4; ++phase) {
        SCOPED_TRACE(std::to_string(target) + " from " + std::to_string(n) + "/" +
                     std::to_string(phase));
        std::int32_t later = 4 * n + phase + 1;
        std::int32_t earlier = 4 * n + phase;
        const auto is_eclipse = [&](std::int32_t number) {
          const auto event = FindPhaseEvent(number / 4, static_cast<std::int16_t>(number % 4));
          return AcceptsEclipse(target, event.eclipse.type);
        };
        while (!is_eclipse(later)) ++later;
        while (!is_eclipse(earlier)) --earlier;
        const auto any = [](const FoundEclipse&) { return true; };
        const auto next = FindEclipse(target, true, {n, phase}, any, Always);
        const auto last = FindEclipse(target, false, {n, phase}, any, Always);
        EXPECT_EQ(4 * next->at.lunation + next->at.phase, later);
        EXPECT_EQ(4 * last->at.lunation + last->at.phase, earlier);
        EXPECT_EQ(next->record.lunation, next->at.lunation);
      }
    }
  }
}

TEST(Targets, SearchesCanBeGivenUp) {
  int asked = 0;
  const auto three_times = [&] { return ++asked <= 3; };
  const auto none = [](const FoundEclipse&) { return false; };
  EXPECT_FALSE(FindEclipse(kSolarEclipseTarget, true, {0, 0}, none, three_times));
  EXPECT_EQ(asked, 4);
  asked = 0;
  EXPECT_FALSE(FindCoincidence(DayNumber(776073), true, three_times));
  EXPECT_EQ(asked, 4);
}

// coincidences.csv: a day to start from, the direction, and the day of the coincidence found.
TEST(Targets, CoincidencesAgreeWithTheReference) {
  for (const ReferenceRow& row : ReadReferenceData("coincidences.csv")) {
    const DayNumber start(std::stoi(row.at("start_day_number")));
    const DayNumber expected(std::stoi(row.at("found_day_number")));
    const std::string& direction = row.at("direction");
    EXPECT_EQ(FindCoincidence(start, direction == "next", Always), expected)
        << direction << " from " << start.value;
    EXPECT_TRUE(IsCoincidenceOf1sts(expected));
    for (const int other : {-1, 1, 2}) EXPECT_FALSE(IsCoincidenceOf1sts(expected + other));
  }
}

TEST(Targets, CoincidencesAreNotFoundTwice) {
  constexpr DayNumber kFirst(776073);
  const std::optional<DayNumber> next = FindCoincidence(kFirst, true, Always);
  ASSERT_TRUE(next);
  EXPECT_GT(*next, kFirst);
  EXPECT_EQ(FindCoincidence(*next, false, Always), kFirst);
  EXPECT_EQ(FindCoincidence(kFirst - 1, true, Always), kFirst);
  EXPECT_EQ(FindCoincidence(kFirst + 1, false, Always), kFirst);
}

TEST(Targets, CoincidencesEndWhereTheNumbersDo) {
  EXPECT_FALSE(FindCoincidence(DayNumber(2147483600), true, Always));
  EXPECT_FALSE(FindCoincidence(DayNumber(-2147483600), false, Always));
}

}  // namespace
}  // namespace tarnwick
