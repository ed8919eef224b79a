#include "navigation/target.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "tests/reference_data.h"

namespace tarnwick {
namespace {

bool Always() { return true; }

// In lunation 10, for each phase in effect: where the search arrives, forward, back, and back from
// the very instant.
TEST(Targets, PhasesFromEveryPhase) {
  const struct {
    int target;
    std::int16_t phase;
    PhaseNumber forward, back, back_from_instant;
  } rows[] = {
      {0, 1, {10, 2}, {9, 2}, {9, 2}},   {0, 2, {11, 2}, {10, 2}, {9, 2}},
      {0, 3, {11, 2}, {10, 2}, {10, 2}}, {1, 0, {11, 0}, {10, 0}, {9, 0}},
      {1, 3, {11, 0}, {10, 0}, {10, 0}}, {2, 0, {10, 1}, {9, 1}, {9, 1}},
      {2, 1, {11, 1}, {10, 1}, {9, 1}},  {3, 2, {10, 3}, {9, 3}, {9, 3}},
      {3, 3, {11, 3}, {10, 3}, {9, 3}},  {4, 0, {10, 1}, {10, 0}, {9, 3}},
      {4, 2, {10, 3}, {10, 2}, {10, 1}}, {4, 3, {11, 0}, {10, 3}, {10, 2}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(std::to_string(row.target) + " from phase " + std::to_string(row.phase));
    const PhaseNumber at{10, row.phase};
    EXPECT_EQ(FindPhase(row.target, true, {at, false}), row.forward);
    EXPECT_EQ(FindPhase(row.target, true, {at, true}), row.forward);
    EXPECT_EQ(FindPhase(row.target, false, {at, false}), row.back);
    EXPECT_EQ(FindPhase(row.target, false, {at, true}), row.back_from_instant);
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
  using Numbers = std::numeric_limits<std::int32_t>;
  for (const int inside : {0, 40}) {
    EXPECT_FALSE(FindCoincidence(DayNumber(Numbers::max() - inside), true, Always));
    EXPECT_FALSE(FindCoincidence(DayNumber(Numbers::min() + inside), false, Always));
  }
}

}  // namespace
}  // namespace tarnwick
