// Runs the flows of tests/flows through the driver. In a flow a line "> COMMAND" is carried out,
// the lines up to the next one are the answer it must give ('' for an empty line), and "# " begins
// a comment.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "tests/driver_answers.h"
#include "tools/driver/driver.h"

namespace tarnwick {
namespace {

struct Line {
  std::size_t number = 0;  // in the flow's file
  std::string text;
};

struct Flow {
  std::string commands;
  std::vector<Line> answers;
};

Flow ReadFlow(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  Flow flow;
  std::string line;
  for (std::size_t number = 1; std::getline(file, line); ++number) {
    if (line.empty() || line.starts_with("# ")) continue;
    if (line.starts_with("> ")) {
      flow.commands += line.substr(2) + "\n";
    } else {
      flow.answers.push_back({number, line == "''" ? "" : line});
    }
  }
  return flow;
}

std::vector<std::filesystem::path> Flows() {
  std::vector<std::filesystem::path> flows;
  for (const auto& entry : std::filesystem::directory_iterator(TEST_FLOWS)) {
    flows.push_back(entry.path());
  }
  std::sort(flows.begin(), flows.end());
  return flows;
}

class FlowTest : public testing::TestWithParam<std::filesystem::path> {};

TEST_P(FlowTest, AnswersAsWritten) {
  const Flow flow = ReadFlow(GetParam());
  ASSERT_FALSE(flow.answers.empty());
  std::istringstream input(flow.commands);
  std::ostringstream output;
  Driver(input, output, TEST_PROGRAM_FOLDER).Run();

  std::istringstream answers(output.str());
  std::string answer;
  for (const Line& expected : flow.answers) {
    ASSERT_TRUE(std::getline(answers, answer)) << "no answer for line " << expected.number;
    ASSERT_EQ(answer, expected.text) << "line " << expected.number;
  }
  EXPECT_FALSE(std::getline(answers, answer)) << "one answer too many: " << answer;
}

INSTANTIATE_TEST_SUITE_P(All, FlowTest, testing::ValuesIn(Flows()),
                         [](const auto& flow) { return flow.param.stem().string(); });

TEST(Driver, ExitStatusTellsOfErrors) {
  for (const auto& [commands, status] :
       {std::pair("start\nget lblTime(1)\n", 0), std::pair("start\nget nothing\nfocus\n", 1)}) {
    std::istringstream input(commands);
    std::ostringstream output;
    EXPECT_EQ(Driver(input, output, TEST_PROGRAM_FOLDER).Run(), status) << commands;
  }
}

TEST(Driver, DumpPrintsEverythingByName) {
  const std::string dump = DriverAnswers("start\nset txbPlusMinus 7\\\\r\ndump\n");
  std::size_t at = 0;
  for (const std::string line :
       {"frmCredits|Credits|0", "frmLogPreferences|chkIncludeCE|1|1|1|#000000|",
        "frmMain|Tarnwick 18.0|1", "frmMain|Clock|0|0|1|#000000|",
        "|1|1|#ffffff|The 5th day of March in the year 2024 in the Common Era Calendar",
        "frmMain|lblTime(1)|12:00 (local=GMT)|1|1|#000000|",
        "frmMain|picMoon|lastquarter.bmp|1|1|#000000|", "frmMain|txbPlusMinus|7\\\\r|1|1|#000000|",
        "frmMain.txbPlusMinus\n."}) {
    const std::size_t found = dump.find(line + "\n", at);
    ASSERT_NE(found, std::string::npos) << line;
    at = found + line.size();
  }
  EXPECT_EQ(at + 1, dump.size());
}

TEST(Driver, TellsOfTheFirstMissingPictureOnly) {
  std::istringstream input("start\nclick cmdMove\nmessages\n");
  std::ostringstream output;
  Driver(input, output, "nowhere").Run();
  EXPECT_THAT(output.str(), testing::MatchesRegex("exclamation.ok.Error.Picture not found: nowhere"
                                                  "\\S*lastquarter.bmp\n.\n"));
}

}  // namespace
}  // namespace tarnwick
