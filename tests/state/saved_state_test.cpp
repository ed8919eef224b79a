// The saved state, from the controls to the file and back, and files that are no good.
#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "controls/text_file.h"
#include "tests/driver_answers.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLargestFile = 65536;

struct Record {
  const char* in_file;
  const char* control;  // that shows it
  const char* shown;
  const char* by_default;
};

// The greatest choices there are, or else what no first start shows.
constexpr Record kRecords[] = {
    {"2451401.9604773945", "lblAstronomicalJulianDate(1)", "2,451,401.9605 AJD",
     "2,460,375.0000 AJD"},
    {"8", "lblOstrelLWCDate(1).ForeColor", "#ffffff", "#c8c8c8"},
    {"0", "optMoveDirection(0)", "0", "1"},
    {"0", "optPlus", "0", "1"},
    {"0", "optNext", "0", "1"},
    {"-1", "optGreenwich", "1", "0"},
    {"19", "cboMoveStep", "19", "2"},
    {"15", "cboTarget", "15", "11"},
    {"48", "cboTimeZone", "48", "24"},
    {"4", "cboRefreshPeriod", "4", "2"},
    {"1", "chkRepeatedly", "1", "0"},
    {"1", "chkLog", "1", "0"},
    {"\"Solar eclipse\r\n\r\nSaros number = 145\r\n\"", "lblActualEclipseData",
     "Solar eclipse\\r\\n\\r\\nSaros number = 145\\r\\n", ""},
    {"\"Looking for something?\"", "frmMain.Visible", "1", "1"},  // shown by nothing
    {"0", "frmLogPreferences.optLogFormat(0)", "0", "1"},
    {"0", "frmLogPreferences.chkIncludeCE", "0", "1"},
    {"0", "frmLogPreferences.chkIncludeJC", "0", "1"},
    {"0", "frmLogPreferences.chkIncludeARC", "0", "1"},
    {"0", "frmLogPreferences.chkIncludeSD", "0", "1"},
    {"0", "frmLogPreferences.chkIncludeLLT", "0", "1"},
    {"0", "frmLogPreferences.chkIncludeKSG", "0", "1"},
    {"0", "frmLogPreferences.chkIncludeCJD", "0", "1"},
    {"0", "frmLogPreferences.chkIncludeAJD", "0", "1"},
    {"0", "frmLogPreferences.chkIncludePhaseOfMoonAndIllumination", "0", "1"},
    {"0", "frmLogPreferences.chkIncludeLunationAndAgeOfMoon", "0", "1"},
    {"0", "frmLogPreferences.chkIncludeOLWC", "0", "1"},
    {"3", "cboMonthCalendar", "3", "0"},
};
constexpr std::size_t kCount = std::size(kRecords);

std::size_t IndexOf(std::string_view control) {
  const auto* const record = std::ranges::find(kRecords, control, &Record::control);
  return static_cast<std::size_t>(record - kRecords);
}

std::string FileOf(std::span<const Record> records, const char* line_end = "\r\n") {
  std::string text;
  for (const Record& record : records) text += std::string(record.in_file) + line_end;
  return text;
}

// A file in which one record stands otherwise.
std::string FileWith(std::size_t index, const std::string& line) {
  const std::span<const Record> records(kRecords);
  return FileOf(records.first(index)) + line + "\r\n" + FileOf(records.subspan(index + 1));
}

// What a start shows that has taken up so many records, and no message.
std::vector<std::string> Shown(std::size_t taken_up) {
  std::vector<std::string> shown;
  for (std::size_t i = 0; i < kCount; ++i) {
    shown.emplace_back(i < taken_up ? kRecords[i].shown : kRecords[i].by_default);
  }
  shown.emplace_back(".");
  return shown;
}

class SavedState : public testing::Test {
 public:
  SavedState() { std::filesystem::create_directories(folder_); }
  ~SavedState() override { std::filesystem::remove_all(folder_); }

  std::filesystem::path File() const { return folder_ / "state.usr"; }

  // Afresh, as emptying a file that is there can take long.
  void Write(const std::string& text) const {
    std::filesystem::remove(File());
    std::ofstream(File(), std::ios::binary) << text;
  }

  std::string Read() const { return ReadTextFile(File(), kLargestFile).value_or("none"); }

  std::vector<std::string> Answers(const std::string& commands) const {
    std::istringstream output(DriverAnswers("statefile " + File().string() + "\n" + commands));
    std::vector<std::string> answers;
    for (std::string answer; std::getline(output, answer);) answers.push_back(answer);
    return answers;
  }

  // What a start shows; see Shown.
  std::vector<std::string> Start() const {
    std::string commands = "start\n";
    for (const Record& record : kRecords) commands += std::string("get ") + record.control + "\n";
    return Answers(commands + "messages\n");
  }

  std::vector<std::string> StartFrom(const std::string& text) const {
    Write(text);
    return Start();
  }

  const std::filesystem::path folder_ =
      testing::TempDir() + "tarnwick_state_" + std::to_string(std::random_device()());
};

// The eclipse on display is the one last found after a restart too, its times as they are read now.
TEST_F(SavedState, EclipseOnDisplayIsTakenUp) {
  Answers("start\nchoose cboTarget Total lunar eclipse\nclick cmdSearch\nclick cmdQuit\n");
  const auto restarted = Answers(
      "start\nget lblCommonEraDate(1)\nget lblActualEclipseData\nclick cmdSearch\n"
      "get lblCommonEraDate(1)\nmessages\n");
  EXPECT_EQ(restarted, (std::vector<std::string>{
                           "2025-03-14 CE (Friday, March 14, 2025)",
                           "Total lunar eclipse\\r\\nLunation number = 311\\r\\nSaros number = 123"
                           "\\r\\nPenumbral phase starts 03:57 and lasts 6h 3m.\\r\\nUmbral phase "
                           "starts 05:09 and lasts 3h 38m.\\r\\nTotal phase starts 06:26 and lasts "
                           "1h 5m.\\r\\n",
                           "2025-09-07 CE (Sunday, September 7, 2025)", "."}));
}

TEST_F(SavedState, FileIsWrittenAsItWasRead) {
  Write(FileOf(kRecords));
  EXPECT_EQ(Answers("start\nclose frmMain\nmessages\n"), std::vector<std::string>{"."});
  EXPECT_EQ(Read(), FileOf(kRecords));
}

TEST_F(SavedState, CutFileGivesTheRecordsBeforeTheCut) {
  std::string text;
  for (std::size_t i = 0; i < kCount; ++i) {
    const std::string line = FileOf(std::span(&kRecords[i], 1));
    for (std::size_t length = 0; length < line.size(); ++length) {
      const std::vector<std::string> shown = StartFrom(text + line.substr(0, length));
      std::vector<std::string> expected = Shown(i);
      if (length > 0) expected[i] = shown.at(i);  // what is left of a number may be another one
      EXPECT_EQ(shown, expected) << text << line.substr(0, length);
    }
    text += line;
  }
  EXPECT_EQ(StartFrom(text), Shown(kCount));
}

TEST_F(SavedState, BadRecordEndsTheReading) {
  std::vector<std::pair<std::string, std::string>> table;
  const auto add = [&table](const std::string& control, const auto&... lines) {
    (table.emplace_back(control, lines), ...);
  };
  for (const Record& record : kRecords) {
    const std::string name = record.control;
    add(name, "", "\"", "no number", "nan", "inf", "99999999999999999999", "0 0");
    if (name.find("opt") != std::string::npos) add(name, "7", "1");
    if (name.find("chk") != std::string::npos) add(name, "2", "-1");
    if (name.starts_with("cbo")) add(name, "50", "-1", "0.5", "\"1\"", "65536");
  }
  add("lblAstronomicalJulianDate(1)", "552282.9999", "3912515.0001", "-2451401", "1e999", "-inf");
  add("lblOstrelLWCDate(1).ForeColor", "9", "-1");
  add("cboMoveStep", "20");
  add("cboTarget", "16");
  add("cboTimeZone", "49");
  add("cboRefreshPeriod", "5");
  add("cboMonthCalendar", "4");
  add("lblActualEclipseData", "\"Eclipse", "Eclipse\"", "\"Solar\" eclipse", "1");
  add("frmMain.Visible", "\"Looking for something?", "0");
  for (const auto& [control, line] : table) {
    const std::size_t index = IndexOf(control);
    EXPECT_EQ(StartFrom(FileWith(index, line)), Shown(index)) << control << " from " << line;
  }
}

TEST_F(SavedState, RecordAtTheEdgeIsTakenUp) {
  constexpr const char* kTable[][3] = {
      {"lblAstronomicalJulianDate(1)", "552283", "552,283.0000 AJD"},
      {"lblAstronomicalJulianDate(1)", "3912515", "3,912,515.0000 AJD"},
      {"cboTarget", "13", "6"},  // there is no eclipse to take the series of
      {"cboTimeZone", " 0 ", "0"},
      {"lblActualEclipseData", "\"\"", ""},
      {"lblActualEclipseData", "\"Lunation number = 311\"", "Lunation number = 311"},
  };
  for (const auto& [control, line, shown] : kTable) {
    std::vector<std::string> expected = Shown(kCount);
    expected[IndexOf(control)] = shown;
    EXPECT_EQ(StartFrom(FileWith(IndexOf(control), line)), expected) << control;
  }
}

TEST_F(SavedState, OtherFilesAreNoFault) {
  EXPECT_EQ(Start(), Shown(0)) << "no file";
  EXPECT_EQ(StartFrom(FileOf(kRecords, "\n")), Shown(kCount)) << "other line ends";
  EXPECT_EQ(StartFrom(FileOf(kRecords) + std::string(kLargestFile, ' ')), Shown(0)) << "too long";
  std::filesystem::remove(File());
  std::filesystem::create_directory(File());
  EXPECT_EQ(Start(), Shown(0)) << "folder";
}

// A good file with a few bytes changed, taken out or repeated.
std::string Mutated(std::string text, std::mt19937& random) {
  constexpr std::string_view kBytes("0123456789.-+e\"\r\n \0\x80\xff", 21);
  for (auto edits = 1 + random() % 4; edits > 0; --edits) {
    const std::size_t at = random() % text.size();
    const std::size_t length = random() % 20;
    switch (random() % 3) {
      case 0:
        text[at] = kBytes[random() % kBytes.size()];
        break;
      case 1:
        text.erase(at, length);
        break;
      default:
        text.insert(at, text.substr(random() % text.size(), length));
    }
  }
  return text;
}

TEST_F(SavedState, AnyBytesLetTheProgramStart) {
  const std::string good = FileOf(kRecords);
  std::mt19937 random(20240305);
  for (int round = 0; round < 3000; ++round) {
    std::string text = Mutated(good, random);
    if (round % 4 == 0) std::ranges::generate(text, [&] { return static_cast<char>(random()); });
    Write(text);
    ASSERT_EQ(Answers("start\nget frmMain.Visible\nmessages\n"),
              (std::vector<std::string>{"1", "."}))
        << testing::PrintToString(text);
  }
}

std::string WithDump(const std::string& commands) { return "start\n" + commands + "dump\n"; }

// What labels and choices show; the history is that of one run.
std::vector<std::string> Kept(std::vector<std::string> dump) {
  std::erase_if(dump, [](const std::string& line) {
    const auto has = [&](const char* part) { return line.find(part) != std::string::npos; };
    return has("|cboHistory|") || !(has("|lbl") || has("|opt") || has("|cbo") || has("|chk"));
  });
  return dump;
}

TEST_F(SavedState, NextStartShowsWhatTheLastRunShowed) {
  const std::vector<std::string> first_start = Kept(Answers(WithDump("")));
  for (const char* const set_up : {
           // Greenwich and a zone of half hours, an eclipse on display, all results logged.
           "set cboTimeZone 7\nset optGreenwich 1\nset txbDate 1999-08-01 CE\nclick cmdSearch\n"
           "click lblSarvikDolmerSLCDate(0)\nset optMoveDirection(1) 1\nset optMinus 1\n"
           "set optPrevious 1\nset cboMoveStep 12\nset cboTarget 3\nset cboRefreshPeriod 0\n"
           "set chkRepeatedly 1\nset chkLog 1\nset cboMonthCalendar 2\nclick cmdLogPreferences\n"
           "click frmLogPreferences.cmdClearAll\nset frmLogPreferences.chkIncludeSD 1\n"
           "set frmLogPreferences.optLogFormat(1) 1\nclick frmLogPreferences.cmdClose\n",
           // Local time, in a calendar whose days begin elsewhere, long ago.
           "set cboTimeZone 43\nset txbDate 1799-12-2-1 OLW 21:17\nclick cmdCompute\n"
           "set cboMoveStep 0\nset cboTarget 5\nset cboRefreshPeriod 3\n"
           "click cmdLogPreferences\nset frmLogPreferences.chkIncludeKSG 0\n"
           "set frmLogPreferences.chkIncludeOLWC 0\nclick frmLogPreferences.cmdClose\n",
       }) {
    const auto before = Kept(Answers(WithDump(set_up) + "close frmMain\n"));
    EXPECT_EQ(Kept(Answers(WithDump(""))), before) << set_up;
    EXPECT_NE(before, first_start);
    std::filesystem::remove(File());
  }
}

TEST_F(SavedState, ZoneChangedAfterAStartKeepsTheLocalTime) {
  Write(FileWith(IndexOf("optGreenwich"), "0"));
  const std::vector<std::string> answers =
      Answers("start\nget lblTime(1)\nset cboTimeZone 7\nget lblTime(1)\n");
  EXPECT_EQ(answers.at(0), answers.at(1));
}

TEST_F(SavedState, MomentBeyondALimitIsKeptAtTheLimit) {
  for (const auto& [limit, direction, beyond] :
       {std::tuple<std::string, std::string, const char*>{"552283", "1", "552,282.0000 AJD"},
        {"3912515", "0", "3,912,516.0000 AJD"}}) {
    Write(limit + ".0\r\n");
    EXPECT_EQ(Answers("start\nset optMoveDirection(" + direction + ") 1\nclick cmdMove\n" +
                      "get lblAstronomicalJulianDate(1)\nclose frmMain\n"),
              std::vector<std::string>{beyond});
    EXPECT_THAT(Read(), testing::StartsWith(limit + "\r\n"));
  }
}

TEST_F(SavedState, CanBeSavedAgainOnceAnythingOfItHasChanged) {
  const std::string save = "click cmdSaveState\nget cmdSaveState.Enabled\n";
  const std::string ask = "get cmdSaveState.Enabled\n";
  EXPECT_THAT(Answers("start\nclick cmdLogPreferences\n" + save +
                      "set txbDate nonsense\nclick cmdCompute\n" + ask +
                      "set frmLogPreferences.chkIncludeKSG 0\n" + ask + save + "click optMinus\n" +
                      ask + save + "click cmdClearDate\nclick cmdMove\n" + ask),
              testing::ElementsAre("0", "0", "1", "0", "1", "0", "1"));
}

constexpr char kComplaint[] = "exclamation|ok|Save state|Error when attempting to save the state: ";

TEST_F(SavedState, FailedWriteIsTold) {
  std::filesystem::create_directory(File());
  const auto complaint = testing::AllOf(testing::StartsWith(kComplaint), testing::Ne(kComplaint));
  for (const std::filesystem::path& file : {folder_ / "none" / "state.usr", File()}) {
    // The state can still be saved, and the program ends all the same.
    EXPECT_THAT(Answers("statefile " + file.string() +
                        "\nstart\nclick cmdSaveState\nmessages\nget cmdSaveState.Enabled\n"
                        "close frmMain\nmessages\nstart\n"),
                testing::ElementsAre(complaint, ".", "1", complaint, "."));
  }
  EXPECT_TRUE(std::filesystem::is_empty(File()));
}

}  // namespace
}  // namespace tarnwick
