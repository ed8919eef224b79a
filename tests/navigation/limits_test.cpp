// Moves and searches at the ends of the accepted range and beyond.
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "calendars/date_texts.h"
#include "calendars/entry_parser.h"
#include "engines/checked_arithmetic.h"
#include "moon/moon_data.h"
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

// What no entry can make the window show still has an answer, or is refused.
template <class Value>
void ExpectFiniteOrRefused(const Value& value) {
  try {
    EXPECT_TRUE(std::isfinite(value()));
  } catch (const RuntimeError&) {
  }
}

constexpr int kOffset = 720;

void ExpectAnswersAt(UniversalTime moment, const char* text) {
  SCOPED_TRACE(text);
  for (const Calendar calendar : kCalendars) {
    ExpectFiniteOrRefused([&] {
      return static_cast<double>(DateTextsOf(calendar, moment, kOffset).long_form.size());
    });
  }
  ExpectFiniteOrRefused([&] {
    const MoonData moon = MoonDataAt(moment);
    return moon.age + moon.length + moon.fraction;
  });
  for (int step = 0; step < kStepCount; ++step) {
    for (const bool forward : {true, false}) {
      ExpectFiniteOrRefused([&] { return StepMoment(step, forward, moment, kOffset, "").days; });
    }
  }
}

TEST(Limits, NoMomentIsTooFarForAnAnswer) {
  const std::pair<EntryCode, std::vector<const char*>> entries[] = {
      {kEntryOk,
       {"0 AJD", "200000000 AJD", "-1000000000 AJD", "2147483647.99999 CJD", "-2147483648 CJD",
        "99999999999999 CJD", "1000000-1-1 CE", "-5870000-1-1 ARC", "-98072-1-1-1 SD",
        "32767-60-12-1 SD", "15763-1-1-1-1 LLT", "11889-1-1-1 KSG", "12999-1-1-1 OLW",
        "-6999-1-1-1 OLW"}},
      {kInvalidCE, {"-2147483648-1-1 CE"}},
      {kInvalidJC, {"2147483647-12-31 JC"}},
      {kInvalidARC, {"2147483647-1-1 ARC"}},
      {kInvalidSD, {"2147483647-60-13-30 SD"}},
      {kInvalidLLT, {"-2147483648-1-1-1-1 LLT"}},
      {kInvalidKSG, {"-2147483648-1-1-1 KSG"}},
      {kInvalidOLW, {"2147483647-1-1-1 OLW"}},
  };
  for (const auto& [code, texts] : entries) {
    for (const char* const text : texts) {
      const Entry entry = ParseEntry(text, {kCE, kOffset, false});
      EXPECT_EQ(entry.code, code) << text;
      if (code == kEntryOk) ExpectAnswersAt(entry.ajd, text);
    }
  }
}

}  // namespace
}  // namespace tarnwick
