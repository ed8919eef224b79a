// Files that the window of lists saves.
#include <cstddef>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "controls/save_path.h"
#include "controls/text_file.h"
#include "tests/driver_answers.h"

namespace tarnwick {
namespace {

std::size_t CountIn(const std::string& text, std::string_view part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
    ++count;
  }
  return count;
}

class SavedList : public testing::Test {
 protected:
  void TearDown() override { std::filesystem::remove(file_); }

  // The file that a command of the window saves, of the phases from `from` on to `to`.
  std::string Save(const std::string& command, const std::string& from, const std::string& to) {
    answers_ =
        DriverAnswers("now 2024-03-05 12:00:00\nstart\nclick cmdLists\nset frmLists.txbFrom " +
                      from + "\nset frmLists.txbTo " + to +
                      "\nclick frmLists.cmdList\ntick frmLists.tmrList 500\nanswer file " +
                      PathText(file_) + "\nclick frmLists." + command + "\nmessages\n");
    constexpr std::size_t kMost = 1'000'000;
    return ReadTextFile(file_, kMost).value_or("");
  }

  std::filesystem::path file_ =
      std::filesystem::path(testing::TempDir()) /
      (std::string("tarnwick_") + testing::UnitTest::GetInstance()->current_test_info()->name());
  std::string answers_;
};

TEST_F(SavedList, IsATableForSpreadsheets) {
  const std::string text = Save("cmdSaveCSV", "2024-01-01 CE", "2024-01-31 CE");
  EXPECT_TRUE(
      text.starts_with("\xef\xbb\xbf"
                       "Date,Time,Phase,Lunation,AJD\r\n"
                       "2024-01-04 CE,03:30,Last quarter,296,\"2,460,313.6461\"\r\n"))
      << text;
  EXPECT_EQ(CountIn(text, "\r\n"), 5U);
  EXPECT_EQ(answers_, ".\n");
}

TEST_F(SavedList, IsACalendarOfWhatHasAYear) {
  const std::string text = Save("cmdSaveCalendar", "0000-12-01 CE", "0001-01-31 CE");
  EXPECT_TRUE(text.starts_with("BEGIN:VCALENDAR\r\n"));
  EXPECT_TRUE(text.ends_with("END:VCALENDAR\r\n"));
  EXPECT_EQ(CountIn(text, "BEGIN:VEVENT\r\n"), 4U);
  EXPECT_EQ(answers_,
            "information|ok|Save as iCalendar|4 rows had to be left out: a calendar file holds the "
            "years 1 to 9999 only.\n.\n");
}

}  // namespace
}  // namespace tarnwick
