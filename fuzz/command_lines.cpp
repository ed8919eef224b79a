#include "fuzz/command_lines.h"

#include <algorithm>
#include <iterator>
#include <ostream>
#include <sstream>

#include "controls/controls.h"
#include "controls/form.h"
#include "tools/driver/driver.h"

// libFuzzer's own change of a few bytes.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);

namespace tarnwick {
namespace {

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
                                     "tick frmSky.tmrMap 3",
                                     "point frmSky.drwMap 0.5 0.25",
                                     "click cmdQuit",
                                     "close frmMain",
                                     "clipboard",
                                     "messages",
                                     "printed",
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
                                     "resize frmLog 2147483647 2147483647",
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
                                {"resize " + form.Name() + " 9000 ", 1000001},
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

void MutateBytes(std::string& line) {
  constexpr std::size_t kMostGrowth = 32;
  const std::size_t size = line.size();
  line.resize(size + kMostGrowth);
  line.resize(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(line.data()), size, line.size()));
  std::erase(line, '\n');
}

}  // namespace

Lines LinesOf(const std::uint8_t* data, std::size_t size) {
  std::istringstream text(std::string(reinterpret_cast<const char*>(data), size));
  Lines lines;
  for (std::string line; std::getline(text, line);) lines.push_back(line);
  return lines;
}

std::size_t WriteLines(const Lines& lines, std::uint8_t* data, std::size_t room) {
  std::string text;
  for (const std::string& line : lines) {
    if (text.size() + line.size() + 1 > room) break;
    text += line + "\n";
  }
  std::copy(text.begin(), text.end(), data);
  return text.size();
}

void MutateLines(Lines& lines, Random& random) {
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

}  // namespace tarnwick
