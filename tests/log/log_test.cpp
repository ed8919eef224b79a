#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "app/main_window.h"
#include "tests/driver_answers.h"
#include "tools/driver/driver_desktop.h"
#include "tools/driver/properties.h"

namespace tarnwick {
namespace {

std::string FileBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

// Both layouts, logging on and off, results logged later, all of the Moon or a part or none of it.
constexpr char kSession[] = R"(now 2024-03-05 12:34:00
start
set txbDate 2003-12-31 CE 15:55
click cmdCompute
click cmdLogThisResult
click chkLog
set txbDate 1999-08-01 CE
click cmdSearch
choose cboTimeZone GMT + 05:30
click lblOstrelLWCDate(1)
click cmdMove
click cmdLogPreferences
click frmLogPreferences.optLogFormat(1)
choose cboTarget Full moon
click cmdSearch
click frmLogPreferences.chkIncludePhaseOfMoonAndIllumination
click lblKSGDate(1)
click cmdMove
click frmLogPreferences.cmdClearAll
click cmdMove
click frmLogPreferences.chkIncludePhaseOfMoonAndIllumination
click frmLogPreferences.chkIncludeAJD
click cmdNow
click chkLog
click cmdMove
click cmdMove
click cmdLogThisResult
set cboHistory 1
click frmLogPreferences.cmdSetALL
click frmLogPreferences.optLogFormat(0)
click cmdLogThisResult
click cmdViewLog
)";

TEST(Log, SessionIsWrittenToTheByte) {
  const std::string name = "tarnwick log \xC3\xA9.txt";
  const std::string path = testing::TempDir() + name;
  const std::filesystem::path saved(std::u8string(path.begin(), path.end()));
  std::filesystem::remove(saved);
  const std::string save_there = "answer file " + path + "\n";
  const std::string answers =
      DriverAnswers(kSession + save_there + "click frmLog.cmdSaveAs\n" +
                    // A file that is there is not replaced unasked.
                    "set frmLog.txbText other\nanswer no\n" + save_there +
                    "click frmLog.cmdSaveAs\nanswer file /no folder/log.txt\n" +
                    "click frmLog.cmdSaveAs\nmessages\n");
  EXPECT_EQ(answers, "question|yesno|Save log|" + name + " already exists.  Replace it?\n" +
                         "exclamation|ok|Save log|Error when attempting to save the log: "
                         "No such file or directory\n.\n");
  EXPECT_EQ(FileBytes(saved), FileBytes(TEST_DATA "/log.txt"));
  std::filesystem::remove(saved);
}

class LogTest : public testing::Test {
 protected:
  LogTest() {
    form_.Load();
    form_.log.log_window.txbText.SetText("begun\r\n");
  }
  const std::string& Text() { return form_.log.log_window.txbText.Text(); }

  DriverDesktop desktop_{[](YieldMode) {}, TEST_PROGRAM_FOLDER};
  Screen screen_;
  frmMain form_{desktop_, screen_};
};

TEST_F(LogTest, CaptionThatCannotBeCutIsReportedAndWhatWasWrittenStays) {
  Label& date = form_.dates.lblKSGDate[1];
  Label& phase = form_.moon.lblPhaseOfMoon[1];
  const std::tuple<Label&, const char*, const char*> cases[] = {
      {date, "no date", "  KSG="}, {date, "KSG", "  KSG="}, {phase, "Moon", ".0000  \r\n"}};
  for (const auto& [label, caption, ends_with] : cases) {
    form_.log.log_window.ShowText("begun\r\n");
    const std::string shown = label.Caption();
    label.SetCaption(caption);
    form_.log.AddLogEntry({"2000-01-01 CE", "Convert date", ""});
    form_.log.cmdLogThisResult.Click();
    label.SetCaption(shown);
    const auto messages = desktop_.TakeMessages();
    ASSERT_EQ(messages.size(), 1U) << caption;
    EXPECT_EQ(messages[0].title, "Error when adding log entry.");
    EXPECT_EQ(messages[0].text, "Invalid procedure call or argument");
    EXPECT_TRUE(Text().starts_with("begun\r\n")) << Text();
    EXPECT_TRUE(Text().ends_with(ends_with)) << Text();
  }
}

TEST_F(LogTest, FullLogIsClearedOnlyAfterTwoQuestionsAndTheEntryIsNotLost) {
  using enum MessageAnswer;
  const std::string almost_full(999'990, 'x');  // not even room for what was done
  form_.log.chkLog.SetValue(true);
  for (const auto& answers :
       std::vector<std::vector<MessageAnswer>>{{kNo}, {kYes, kCancel}, {kYes, kOk}}) {
    const bool cleared = answers.back() == kOk;
    form_.log.log_window.ShowText(almost_full);
    for (const MessageAnswer answer : answers) desktop_.QueueAnswer(answer);
    form_.move.cmdMove.Click();
    const auto messages = desktop_.TakeMessages();
    ASSERT_EQ(messages.size(), answers.size());
    EXPECT_EQ(messages[0].text, "Log is full.  Clear log?");
    EXPECT_EQ(messages[0].title, "");
    EXPECT_EQ(messages[0].buttons, MessageButtons::kYesNo);
    EXPECT_EQ(messages.back().text,
              answers.size() == 1 ? "Log is full.  Clear log?" : "Erase all data in the log?");
    EXPECT_EQ(form_.log.cmdLogThisResult.Enabled(), !cleared);
    if (!cleared) {
      EXPECT_EQ(Text(), almost_full);
      form_.log.log_window.ShowText("");
      form_.log.cmdLogThisResult.Click();
    }
    EXPECT_TRUE(Text().starts_with("Tarnwick 18.0\r\n")) << Text();
    EXPECT_NE(Text().find("Move forward 1 day.\r\n" + form_.history.cboHistory.Text()),
              std::string::npos)
        << Text();
  }
}

TEST_F(LogTest, LogHoldsAMillionCharacters) {
  const auto log_same_result = [this] {
    for (OptionButton& direction : form_.move.optMoveDirection) {
      direction.SetValue(true);
      form_.move.cmdMove.Click();
    }
    form_.log.cmdLogThisResult.Click();
  };
  const std::string begun = Text();
  log_same_result();
  const std::size_t entry = Text().size() - begun.size();
  ASSERT_GT(entry, 100U);

  const std::string fitting = "\xC3\xA9" + std::string(999'999 - entry, 'x');
  form_.log.log_window.ShowText(fitting);
  log_same_result();
  EXPECT_EQ(Text().size(), fitting.size() + entry);
  EXPECT_TRUE(desktop_.TakeMessages().empty());

  form_.log.log_window.ShowText(fitting + "x");
  desktop_.QueueAnswer(MessageAnswer::kNo);
  log_same_result();
  EXPECT_EQ(desktop_.TakeMessages().size(), 1U);
  // All but the line end of the empty line that closes an entry.
  EXPECT_EQ(Text().size(), fitting.size() + entry - 1);
}

// What is kept of logs when they are closed, beside the state file.
class KeptLog : public testing::Test {
 public:
  KeptLog() { std::filesystem::create_directories(folder_); }
  ~KeptLog() override { std::filesystem::remove_all(folder_); }

  std::string Answers(const std::string& commands) const {
    return DriverAnswers("statefile " + (folder_ / "tnwk.usr").string() +
                         "\nnow 2024-03-05 12:34:56\nstart\nset chkLog 1\nclick cmdMove\n"
                         "click cmdViewLog\n" +
                         commands);
  }
  std::string Kept() const { return FileBytes(file_); }

  const std::filesystem::path folder_ =
      testing::TempDir() + "tarnwick_log_" + std::to_string(std::random_device()());
  const std::filesystem::path file_ = folder_ / "tnwk-log.txt";
};

constexpr char kHeading[] = "==== 2024-03-05 12:34:56 ====\r\n\r\n";

TEST_F(KeptLog, TakesWhatIsNotSavedWhenTheLogIsClosedOrTheProgramEnds) {
  std::string expected;
  for (const char* const end : {"close frmLog\n", "click cmdQuit\n", "close frmMain\n"}) {
    Answers(R"(set frmLog.txbText one\r\n\r\ntwo\n)" + ("\n" + std::string(end)));
    expected += std::string(kHeading) + "one\r\n\r\ntwo\r\n\r\n";
    EXPECT_EQ(Kept(), expected) << end;
  }
  EXPECT_EQ(Answers("click frmLog.cmdClose\nset chkLog 0\nclick cmdMove\nclick cmdViewLog\n"
                    "close frmLog\nget cmdLogThisResult.Enabled\nget frmNotice.lblNotice\n"
                    "get frmLog.txbText\nclick cmdMove\nclick cmdLogThisResult\nclick cmdViewLog\n"
                    "set frmLog.txbText three\nclose frmMain\n"),
            "0\nThe log has been added to " + Escape(file_.string()) + "\n\n");
  EXPECT_TRUE(Kept().starts_with(expected + kHeading + "Tarnwick 18.0\r\n")) << Kept();
  EXPECT_TRUE(Kept().ends_with("%).\r\n\r\n" + (kHeading + std::string("three\r\n\r\n"))))
      << Kept();
}

TEST_F(KeptLog, HasNothingThatWasClearedOrSaved) {
  const std::string save =
      "answer file " + (folder_ / "log.txt").string() + "\nclick frmLog.cmdSaveAs\n";
  for (const std::string& commands :
       {std::string("click frmLog.cmdClear\nclick cmdQuit\n"),
        save + "close frmLog\nget frmNotice.lblNotice\nclick cmdQuit\n"}) {
    EXPECT_TRUE(Answers("messages\n" + commands).find("added") == std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(file_)) << commands;
  }
  Answers(save + "click cmdMove\nclick cmdQuit\n");
  EXPECT_TRUE(Kept().starts_with(kHeading));
}

TEST_F(KeptLog, RefusedByTheDiskStaysInItsWindowAndIsToldOnceAtTheEnd) {
  std::filesystem::create_directory(file_);
  const std::string complaint = "Error when attempting to save the log: This is a folder.";
  EXPECT_EQ(
      Answers("set frmLog.txbText kept\nclose frmLog\nget frmLog.Visible\nget frmLog.txbText\n"
              "click cmdQuit\nstart\n"
              "messages\n"),
      "1\nkept\nexclamation|ok|Save log|" + complaint + "\nexclamation|ok|Save log|" + complaint +
          "\n.\n");
  std::filesystem::remove(folder_ / "tnwk.usr");
  std::filesystem::create_directory(folder_ / "tnwk.usr");
  EXPECT_EQ(Answers("click cmdQuit\nstart\nmessages\n"),
            "exclamation|ok|Save state|Error when attempting to save the state: This is a folder."
            "\\r\\n" +
                complaint + "\n.\n");
}

}  // namespace
}  // namespace tarnwick
