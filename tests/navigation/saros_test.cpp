// The search for the eclipse a saros away, over the whole range of moments.
#include <gtest/gtest.h>
#include <optional>
#include <sstream>
#include <string>

#include "engines/phase_engine.h"
#include "tests/driver_answers.h"

namespace tarnwick {
namespace {

struct Shown {
  std::int32_t lunation = 0;
  bool lunar = false;
};

// What a description of an eclipse tells of it.
std::optional<Shown> ReadShown(const std::string& description) {
  const std::string label = "Lunation number = ";
  const std::size_t found = description.find(label);
  if (found == std::string::npos) return std::nullopt;
  return Shown{std::stoi(description.substr(found + label.size())),
               description.find("lunar eclipse") != std::string::npos};
}

bool IsEclipse(std::int32_t lunation, bool lunar) {
  EclipseRecord record;
  syzyg(lunation, lunar ? 2 : 0, record);
  return record.type != 0;
}

// From every eclipse of the sample forward, and back from there: where the series goes on, the next
// one lies 223 lunations away.
TEST(Saros, SearchesGoOn223Lunations) {
  constexpr int kSaros = 223;
  constexpr int kSamples = 400;
  const std::string search = "click cmdSearch\nget lblActualEclipseData\n";
  std::string commands = "start\n";
  for (int i = 0; i < kSamples; ++i) {
    commands += "set txbDate " + std::to_string(-3150 + 9100 * i / kSamples) + "-01-01 CE\n" +
                "click optNext\nset cboTarget 6\n" + search + "set cboTarget 13\n" + search +
                "click optPrevious\n" + search;
  }
  std::istringstream answers(DriverAnswers(commands));
  int inside = 0;
  for (int i = 0; i < kSamples; ++i) {
    std::optional<Shown> from;
    for (const int distance : {0, kSaros, -kSaros}) {
      std::string answer;
      std::getline(answers, answer);
      const std::optional<Shown> to = ReadShown(answer);
      ASSERT_TRUE(to) << answer;
      if (from) {
        EXPECT_EQ(to->lunar, from->lunar) << answer;
        if (IsEclipse(from->lunation + distance, from->lunar)) {
          ++inside;
          EXPECT_EQ(to->lunation - from->lunation, distance) << answer;
        }
      }
      from = to;
    }
  }
  EXPECT_GT(inside, 700);
}

}  // namespace
}  // namespace tarnwick
