// Moves and searches at the ends of the accepted range and beyond.
#include <gtest/gtest.h>
#include <string>

#include "navigation/step.h"
#include "navigation/target.h"
#include "tests/driver_answers.h"

namespace tarnwick {
namespace {

std::string Repeat(const std::string& text, int count) {
  std::string repeated;
  for (int i = 0; i < count; ++i) repeated += text;
  return repeated;
}

struct Limit {
  const char* moment;
  int direction;  // index of the option button that leads out of the range
  const char* message;
};
constexpr Limit kLimits[] = {{"552283 AJD", 1, "Earliest date exceeded."},
                             {"3912515 AJD", 0, "Latest date exceeded."}};

TEST(Limits, AHundredMovesBeyondThemEachTellAndGoOn) {
  for (const Limit& limit : kLimits) {
    for (int step = 0; step < kStepCount; ++step) {
      SCOPED_TRACE(std::string(limit.moment) + ", " + std::string(StepText(step)));
      const std::string messages = DriverAnswers(
          "start\nset txbDate " + std::string(limit.moment) + "\nclick cmdCompute\n" +
          "set cboMoveStep " + std::to_string(step) + "\nclick optMoveDirection(" +
          std::to_string(limit.direction) + ")\n" + Repeat("click cmdMove\n", 100) + "messages\n");
      const std::string expected =
          std::string("exclamation|ok|Out of range|") + limit.message + "\n";
      EXPECT_EQ(messages, Repeat(expected, 100) + ".\n");
    }
  }
}

TEST(Limits, SearchesNearThemEnd) {
  for (const Limit& limit : kLimits) {
    for (int target = 0; target < kTargetCount; ++target) {
      if (target == kFirstBlankTarget || target == kSecondBlankTarget) continue;
      SCOPED_TRACE(std::string(limit.moment) + ", target " + std::to_string(target));
      const std::string eclipse =
          target == kSameSarosTarget ? "set cboTarget 6\nclick cmdSearch\n" : "";
      std::string shown = DriverAnswers(
          "start\nset txbDate " + std::string(limit.moment) + "\nclick cmdCompute\nclick " +
          (limit.direction == 0 ? "optNext" : "optPrevious") + "\n" + eclipse + "set cboTarget " +
          std::to_string(target) + "\n" + Repeat("click cmdSearch\n", 3) +
          "messages\nget cmdSearch.Enabled\n");
      // A search that leads beyond the limit says so; nothing else may be said.
      const std::string beyond = std::string("exclamation|ok|Out of range|") + limit.message + "\n";
      while (shown.starts_with(beyond)) shown.erase(0, beyond.size());
      EXPECT_EQ(shown, ".\n1\n");
    }
  }
}

}  // namespace
}  // namespace tarnwick
