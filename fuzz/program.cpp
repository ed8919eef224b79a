// The whole program by the driver's commands, one a line, so that an input that fails is a script
// for tarnwick_driver. In the end it quits, and the next start shows what it showed. Inputs change
// line by line: new lines are commands on the controls and windows that there are.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <ostream>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "calendars/text.h"
#include "controls/controls.h"
#include "controls/form.h"
#include "fuzz/check.h"
#include "fuzz/checked_driver.h"
#include "moment/session.h"
#include "tools/driver/driver.h"

// libFuzzer's own change of a few bytes.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);

namespace tarnwick {
namespace {

using Random = std::minstd_rand;
using Lines = std::vector<std::string>;

template <class List>
const auto& OneOf(const List& list, Random& random) {
  return list[random() % std::size(list)];
}

constexpr const char* kTexts[] = {"",
                                  " ",
                                  "1",
                                  "-1",
                                  "001",
                                  "29.5",
                                  "1,000.5",
                                  "36525",
                                  "+-5",
                                  "1e9",
                                  "-2,000,000",
                                  "2003-12-31 CE 15:55",
                                  "2024-02-29",
                                  "-3200-01-01 CE",
                                  "6000-01-01 CE",
                                  "1582-10-05 JC 00:00",
                                  "4708-11-11 ARC 06:30",
                                  "33-31-09-11 SD",
                                  "112-1-4-3 LLT 23:59",
                                  "1-105-13-11 KSG",
                                  "5011-11-2-1 OLW 18:30",
                                  "2,455,901.0000 CJD",
                                  "552283 AJD",
                                  "3912515 AJD",
                                  "3912515.0001 AJD",
                                  "2023-02-29 CE",
                                  "99999999999-1-1",
                                  "12:30",
                                  "2024-03-25 CE (Monday) 7:00",
                                  "größe"};

// Commands of which no control is part.
constexpr const char* kCommands[] = {"start",
                                     "tick",
                                     "tick 3",
                                     "click cmdQuit",
                                     "close frmMain",
                                     "clipboard",
                                     "messages",
                                     "press frmMain 27",
                                     "key frmMain Escape",
                                     "answer ok",
                                     "answer cancel",
                                     "answer yes",
                                     "answer no",
                                     "answer file",
                                     "answer file saved",
                                     "now 2024-03-05 12:34:56 60",
                                     "now 1999-12-31 23:59:59 -720",
                                     "now 9999-12-31 23:59:59 840",
                                     "now 0000-01-01 00:00:00",
                                     "set chkRepeatedly 1",
                                     "click cmdMove",
                                     "click cmdStop",
                                     "click cmdPauseResume",
                                     "click cmdSearch",
                                     "click cmdCompute",
                                     "click cmdBack",
                                     "click cmdForward",
                                     "click cmdNow"};

// A command that may want something behind it.
struct Pattern {
  std::string begin;
  int numbers = 0;  // a number below this
  bool text = false;
};

void AddPatterns(const Control& control, const std::string& name, std::vector<Pattern>& patterns) {
  if (dynamic_cast<const TextBox*>(&control) != nullptr) {
    patterns.push_back({"set " + name + " ", 0, true});
    patterns.push_back({"press " + name + " 13"});
    patterns.push_back({"select " + name + " 2 ", 20});
    patterns.push_back({"mouseup " + name});
  } else if (const auto* list = dynamic_cast<const ComboBox*>(&control)) {
    patterns.push_back({"set " + name + " ", std::max(list->ListCount(), 8)});
  } else if (const auto* label = dynamic_cast<const Label*>(&control)) {
    if (label->on_click) patterns.push_back({"click " + name});
    for (const MenuItem& item : label->menu) {
      patterns.push_back({"menu " + name + " " + item.caption});
    }
  } else if (dynamic_cast<const Frame*>(&control) == nullptr &&
             dynamic_cast<const Timer*>(&control) == nullptr) {
    patterns.push_back({"click " + name});
  }
}

// The commands on a window and its controls.
std::vector<Pattern> PatternsOf(const Form& form) {
  std::vector<Pattern> patterns{{"close " + form.Name()},
                                {"minimise " + form.Name()},
                                {"resize " + form.Name() + " 9000 ", 20000},
                                {"key " + form.Name() + " Escape"},
                                {"key " + form.Name() + " Return"}};
  for (const Shortcut& shortcut : form.Shortcuts()) {
    patterns.push_back({"key " + form.Name() + " " + shortcut.keys});
  }
  for (const Control* control : form.Controls()) {
    AddPatterns(*control, form.Name() + "." + control->Name(), patterns);
  }
  return patterns;
}

// Of all windows, the main one first.
std::vector<std::vector<Pattern>> AllPatterns() {
  std::istringstream input("start\n");
  std::ostream nowhere(nullptr);
  Driver driver(input, nowhere, {});
  driver.Run();
  std::vector<std::vector<Pattern>> patterns;
  for (const Form* form : driver.Windows()->Forms()) patterns.push_back(PatternsOf(*form));
  return patterns;
}

std::string NewCommand(Random& random) {
  static const std::vector<std::vector<Pattern>> kPatterns = AllPatterns();
  switch (random() % 8) {
    case 0:
      return "during " + std::to_string(1 + random() % 3) + " " + NewCommand(random);
    case 1:
    case 2:
      return OneOf(kCommands, random);
    default:
      break;
  }
  const Pattern& pattern =
      OneOf(random() % 2 == 0 ? kPatterns.front() : OneOf(kPatterns, random), random);
  if (pattern.text) return pattern.begin + OneOf(kTexts, random);
  if (pattern.numbers == 0) return pattern.begin;
  return pattern.begin + std::to_string(static_cast<int>(random()) % pattern.numbers);
}

Lines LinesOf(const std::uint8_t* data, std::size_t size) {
  std::istringstream text(std::string(reinterpret_cast<const char*>(data), size));
  Lines lines;
  for (std::string line; std::getline(text, line);) lines.push_back(line);
  return lines;
}

// As many lines as there is room for.
std::size_t Write(const Lines& lines, std::uint8_t* data, std::size_t room) {
  std::string text;
  for (const std::string& line : lines) {
    if (text.size() + line.size() + 1 > room) break;
    text += line + "\n";
  }
  std::copy(text.begin(), text.end(), data);
  return text.size();
}

void MutateBytes(std::string& line) {
  constexpr std::size_t kMostGrowth = 32;
  const std::size_t size = line.size();
  line.resize(size + kMostGrowth);
  line.resize(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(line.data()), size, line.size()));
  std::erase(line, '\n');
}

void Mutate(Lines& lines, Random& random) {
  const std::size_t at = random() % (lines.size() + 1);
  const auto place = lines.begin() + static_cast<std::ptrdiff_t>(at);
  if (place == lines.end()) {
    lines.push_back(NewCommand(random));
    return;
  }
  switch (random() % 8) {
    case 0:
      MutateBytes(*place);
      break;
    case 1:
      lines.erase(place, place + static_cast<std::ptrdiff_t>(
                                     1 + random() % std::min<std::size_t>(4, lines.size() - at)));
      break;
    case 2:
      lines.insert(place, std::string(OneOf(lines, random)));
      break;
    case 3:
      std::swap(*place, lines[random() % lines.size()]);
      break;
    case 4:
      *place = NewCommand(random);
      break;
    default:
      lines.insert(place, NewCommand(random));
  }
}

// Only files of the run's own are written, and no command goes on for ever.
std::string Harmless(const std::string& line) {
  constexpr std::string_view kTick = "tick ";
  constexpr std::size_t kMostDigits = 2;
  if (line.find("file") != std::string::npos) {
    return "answer file " + (ScratchFolder() / "saved").string();
  }
  const std::size_t tick = line.find(kTick);
  if (tick == std::string::npos) return line;
  return line.substr(0, tick + kTick.size() + kMostDigits);
}

// What the next start shows again.
constexpr const char* kKept[] = {"lblAstronomicalJulianDate(1)",
                                 "lblTime(1)",
                                 "lblCommonEraDate(1)",
                                 "lblJulianCalendarDate(1)",
                                 "lblArchetypesDate(1)",
                                 "lblSarvikDolmerSLCDate(1)",
                                 "lblLTCLunarDate(1)",
                                 "lblKSGDate(1)",
                                 "lblOstrelLWCDate(1)",
                                 "lblChronologicalJulianDate(1)",
                                 "lblOstrelLWCDate(1).Selected",
                                 "lblActualEclipseData",
                                 "optGreenwich",
                                 "optMoveDirection(0)",
                                 "optPlus",
                                 "optNext",
                                 "cboTimeZone",
                                 "cboMoveStep",
                                 "cboRefreshPeriod",
                                 "cboMonthCalendar",
                                 "chkRepeatedly",
                                 "chkLog",
                                 "frmLogPreferences.optLogFormat(0)",
                                 "frmLogPreferences.chkIncludeOLWC"};

// No command of the driver, but one that its answers show the place of.
constexpr std::string_view kMark = "#";

// Asks for all that is kept, quits, starts and asks again.
std::string Restart() {
  std::string questions(kMark);
  for (const char* const name : kKept) questions += std::string("\nget ") + name;
  return "click cmdStop\nstart\n" + questions + "\nclose frmMain\nstart\n" + questions + "\n";
}

// A move may end one step beyond the limits, where the next start does not begin.
bool IsWithinLimits(std::string_view ajd) {
  const UniversalTime moment(LeadingNumber(RemoveChars(ajd, ",")));
  return moment >= kLowerLimit && moment <= kUpperLimit;
}

void CheckRestart(std::string_view answers) {
  const std::string mark = "error: unknown command: " + std::string(kMark) + "\n";
  const std::size_t second = answers.rfind(mark);
  const std::size_t first = answers.rfind(mark, second - 1);
  const std::string_view after = answers.substr(second + mark.size());
  const std::string_view before = answers.substr(first + mark.size(), second - first - mark.size());
  if (IsWithinLimits(before)) CheckAlike(before, after, "the next start shows what was shown");
}

}  // namespace
}  // namespace tarnwick

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t max_size, unsigned int seed) {
  using namespace tarnwick;
  Random random(seed);
  Lines lines = LinesOf(data, size);
  Mutate(lines, random);
  return Write(lines, data, max_size);
}

// The beginning of the one and the end of the other.
extern "C" std::size_t LLVMFuzzerCustomCrossOver(const std::uint8_t* first, std::size_t first_size,
                                                 const std::uint8_t* second,
                                                 std::size_t second_size, std::uint8_t* out,
                                                 std::size_t max_out_size, unsigned int seed) {
  using namespace tarnwick;
  Random random(seed);
  Lines lines = LinesOf(first, first_size);
  const Lines others = LinesOf(second, second_size);
  if (lines.empty() || others.empty()) return Write(others, out, max_out_size);
  lines.resize(1 + random() % lines.size());
  lines.insert(lines.end(), others.begin() + static_cast<std::ptrdiff_t>(random() % others.size()),
               others.end());
  return Write(lines, out, max_out_size);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarnwick;
  for (const auto& file : std::filesystem::directory_iterator(ScratchFolder())) {
    std::filesystem::remove(file);
  }
  std::string commands = "statefile " + (ScratchFolder() / "state.usr").string() + "\nstart\n";
  for (const std::string& line : LinesOf(data, size)) commands += Harmless(line) + "\n";
  std::ostringstream answers;
  RunChecked(commands + Restart(), answers);
  CheckRestart(answers.str());
  return 0;
}
