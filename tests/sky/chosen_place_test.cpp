// The place of the window of the sky, from one run to the next, and places that are none.
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "controls/save_path.h"
#include "controls/text_file.h"
#include "tests/driver_answers.h"
#include "tools/driver/driver.h"

namespace tarnwick {
namespace {

class ChosenPlace : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directory(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::string Answers(const std::string& commands) const {
    return DriverAnswers("now 2024-03-05 12:00:00\nstatefile " + PathText(folder_ / "state.usr") +
                         "\nstart\nclick cmdSky\n" + commands);
  }
  std::string FileText() const { return ReadTextFile(file_, 1000).value_or("no file"); }

  std::filesystem::path folder_ =
      std::filesystem::path(testing::TempDir()) /
      (std::string("tarnwick_") + testing::UnitTest::GetInstance()->current_test_info()->name());
  std::filesystem::path file_ = folder_ / "tnwk-place.usr";
};

TEST_F(ChosenPlace, IsKeptInAFileOfItsOwn) {
  EXPECT_EQ(Answers("get frmSky.cboPlace.Text\n"), "Greenwich\n");
  EXPECT_EQ(FileText(), "no file");
  Answers("choose frmSky.cboPlace Babylon\n");
  EXPECT_EQ(FileText(), "32.54 N 44.42 E\r\n");
  EXPECT_EQ(Answers("get frmSky.cboPlace.Text\nget frmSky.txbLongitude\n"), "Babylon\n44.42 E\n");
}

TEST_F(ChosenPlace, ThatCannotBeReadIsToldAndStaysAsItIs) {
  ASSERT_EQ(WriteTextFile(file_, "32.54 N 244.42 E\r\n"), "");
  const std::string answers = Answers("get frmSky.cboPlace.Text\nmessages\n");
  EXPECT_TRUE(
      answers.starts_with("Greenwich\nexclamation|ok|Place|The place that was kept is lost"))
      << answers;
  EXPECT_TRUE(answers.ends_with("A longitude runs from -180 to 180\n.\n")) << answers;
  EXPECT_EQ(FileText(), "32.54 N 244.42 E\r\n");
}

TEST_F(ChosenPlace, ThatCannotBeKeptIsShownAllTheSame) {
  std::filesystem::create_directory(file_);  // no file can take its place
  const std::string answers =
      Answers("choose frmSky.cboPlace Babylon\nget frmSky.txbLatitude\nmessages\n");
  EXPECT_NE(answers.find("32.54 N\n"), std::string::npos) << answers;
  EXPECT_NE(answers.find("|Place|Error when attempting to save the place: "), std::string::npos)
      << answers;
}

// The window is of use without its tables, and tells of each that is missing, once.
TEST(SkyWindow, WorksWithoutPlacesAndCoastlines) {
  std::istringstream input(
      "start\nclick cmdSky\nmessages\nset frmSky.txbLatitude 32.54 N 44.42 E\n"
      "press frmSky.txbLatitude 13\nget frmSky.lblSun(1)\nclick frmSky.cmdClose\nclick cmdSky\n"
      "messages\n");
  std::ostringstream output;
  EXPECT_EQ(Driver(input, output, TEST_DATA).Run(), 0);
  const std::string answers = output.str();
  EXPECT_NE(answers.find("The places cannot be read: "), std::string::npos) << answers;
  EXPECT_NE(answers.find("coastlines.csv"), std::string::npos) << answers;
  EXPECT_TRUE(answers.ends_with("35.0\u00b0 high, azimuth 233.7\u00b0\n.\n")) << answers;
}

}  // namespace
}  // namespace tarnwick
