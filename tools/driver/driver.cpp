#include "tools/driver/driver.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <utility>
#include <vector>

#include "calendars/date_processing.h"
#include "controls/drawing.h"
#include "controls/keys.h"
#include "controls/table.h"
#include "engines/time_units.h"
#include "tools/driver/properties.h"

namespace tarnwick {
namespace {

struct CommandError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The text up to the first blank, and the rest after it.
std::pair<std::string_view, std::string_view> SplitWord(std::string_view text) {
  const std::size_t blank = text.find(' ');
  if (blank == std::string_view::npos) return {text, {}};
  return {text.substr(0, blank), text.substr(blank + 1)};
}

int ParseNumber(std::string_view text, int least = std::numeric_limits<int>::min(),
                int most = std::numeric_limits<int>::max()) {
  int number = 0;
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (status != std::errc() || end != text.data() + text.size() || number < least ||
      number > most) {
    throw CommandError("no such number: " + std::string(text));
  }
  return number;
}

// A fraction of a length.
double ParseFraction(std::string_view text) {
  double fraction = 0;
  const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), fraction);
  if (status != std::errc() || end != text.data() + text.size() || !(fraction >= 0) ||
      !(fraction <= 1)) {
    throw CommandError("no such fraction: " + std::string(text));
  }
  return fraction;
}

std::filesystem::path Utf8Path(std::string_view text) {
  return std::filesystem::path(std::u8string(text.begin(), text.end()));
}

// Whether the text looks like the pattern, in which each "0" stands for a digit.
bool Matches(std::string_view text, std::string_view pattern) {
  if (text.size() != pattern.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool fits = pattern[i] == '0' ? text[i] >= '0' && text[i] <= '9' : text[i] == pattern[i];
    if (!fits) return false;
  }
  return true;
}

bool IsDate(std::string_view text) {
  DateRecord date;
  return Matches(text, "0000-00-00") && ParseDateString(text, date) == kDateParsed;
}

bool IsTime(std::string_view text) {
  return Matches(text, "00:00:00") && text.substr(0, 2) < "24" && text.substr(3, 2) < "60" &&
         text.substr(6) < "60";
}

std::string_view IconName(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kExclamation:
      return "exclamation";
    case MessageIcon::kInformation:
      return "information";
    case MessageIcon::kQuestion:
      return "question";
    case MessageIcon::kNone:
      break;
  }
  return "none";
}

std::string_view ButtonsName(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::kOkCancel:
      return "okcancel";
    case MessageButtons::kYesNo:
      return "yesno";
    case MessageButtons::kOk:
      break;
  }
  return "ok";
}

// The focus of the active window as "form.control", empty when nothing has it.
std::string FocusText(const Screen& screen) {
  const Form* form = screen.Active();
  if (form == nullptr || form->Focus() == nullptr) return {};
  return form->Name() + "." + form->Focus()->Name();
}

template <class T>
std::vector<const T*> SortedByName(const std::vector<T*>& named) {
  std::vector<const T*> sorted(named.begin(), named.end());
  std::sort(sorted.begin(), sorted.end(),
            [](const T* left, const T* right) { return left->Name() < right->Name(); });
  return sorted;
}

// A number of the table's rows, or of its columns, counted from 0.
std::size_t ParseRow(std::string_view text, const Table& table) {
  const auto row = static_cast<std::size_t>(ParseNumber(text, 0));
  if (row >= table.RowCount()) throw CommandError("no such row: " + std::string(text));
  return row;
}

std::size_t ParseColumn(std::string_view text, const Table& table) {
  const auto column = static_cast<std::size_t>(ParseNumber(text, 0));
  if (column >= table.Columns().size()) {
    throw CommandError("no such column: " + std::string(text));
  }
  return column;
}

void SetByUser(Control& control, std::string_view value) {
  if (auto* text = dynamic_cast<TextBox*>(&control)) {
    text->SetText(Unescape(value));
  } else if (auto* list = dynamic_cast<ComboBox*>(&control)) {
    const int index = ParseNumber(value, 0);
    if (!list->CanSelect(index)) throw CommandError("no such item: " + std::string(value));
    list->SetListIndex(index);
  } else if (auto* table = dynamic_cast<Table*>(&control)) {
    table->Select(ParseRow(value, *table));
  } else if (auto* check = dynamic_cast<CheckBox*>(&control);
             check && (value == "0" || value == "1")) {
    check->SetValue(value == "1");
  } else if (auto* option = dynamic_cast<OptionButton*>(&control); option && value == "1") {
    option->SetValue(true);
  } else {
    throw CommandError("cannot set " + control.Name() + " to " + std::string(value));
  }
}

}  // namespace

struct Driver::Command {
  std::string_view name;
  void (Driver::*run)(std::string_view arguments);
};

struct Driver::Target {
  Form* form = nullptr;
  Control* control = nullptr;  // null when the name is that of a form
  std::string_view property;   // empty when none is named
};

const Driver::Command Driver::kCommands[] = {
    {"now", &Driver::Now},           {"statefile", &Driver::StateFile},
    {"start", &Driver::Start},       {"set", &Driver::Set},
    {"choose", &Driver::Choose},     {"click", &Driver::Click},
    {"press", &Driver::Press},       {"select", &Driver::Select},
    {"mouseup", &Driver::MouseUp},   {"resize", &Driver::Resize},
    {"minimise", &Driver::Minimise}, {"close", &Driver::Close},
    {"get", &Driver::Get},           {"items", &Driver::Items},
    {"focus", &Driver::Focus},       {"messages", &Driver::Messages},
    {"answer", &Driver::Answer},     {"tick", &Driver::Tick},
    {"during", &Driver::During},     {"clipboard", &Driver::Clipboard},
    {"dump", &Driver::Dump},         {"key", &Driver::Key},
    {"menu", &Driver::Menu},         {"point", &Driver::Point},
    {"rows", &Driver::Rows},         {"cell", &Driver::Cell},
    {"sort", &Driver::Sort},         {"printed", &Driver::Printed},
};

Driver::Driver(std::istream& input, std::ostream& output, std::filesystem::path program_folder)
    : input_(input),
      output_(output),
      desktop_([this](YieldMode mode) { OnYield(mode); }, std::move(program_folder)) {}

int Driver::Run() {
  try {
    while (ReadAndExecute()) {
    }
  } catch (const Quit&) {
    // The input ended inside a running move.
  }
  return failed_ ? 1 : 0;
}

// False at "quit" and at the end of the input.
bool Driver::ReadAndExecute() {
  std::string line;
  if (!std::getline(input_, line)) return false;
  if (line.ends_with('\r')) line.pop_back();
  if (line == "quit") return false;
  if (!line.empty()) Execute(line);
  return true;
}

void Driver::Execute(const std::string& line) {
  try {
    Dispatch(line);
  } catch (const CommandError& error) {
    failed_ = true;
    Print(std::string("error: ") + error.what());
  }
  output_.flush();
}

void Driver::Dispatch(const std::string& line) {
  const auto [name, arguments] = SplitWord(line);
  for (const Command& command : kCommands) {
    if (command.name != name) continue;
    ++running_handlers_;
    try {
      (this->*command.run)(arguments);
    } catch (...) {
      --running_handlers_;
      throw;
    }
    --running_handlers_;
    EndIfAsked();
    return;
  }
  throw CommandError("unknown command: " + std::string(name));
}

// The forms go when the program has ended and none of their handlers runs any more.
void Driver::EndIfAsked() {
  if (running_handlers_ > 0 || !desktop_.TakeEnd()) return;
  main_.reset();
  screen_.reset();
}

// A waiting program takes the next command; a busy one goes on.
void Driver::OnYield(YieldMode mode) {
  if (mode != YieldMode::kWait) {
    only_quitting_ = mode == YieldMode::kOnlyQuitting;
    if (yields_until_during_ > 0 && --yields_until_during_ == 0) Execute(during_command_);
    only_quitting_ = false;
    return;
  }
  if (ticks_left_ > 0) {
    --ticks_left_;
    FireTimer();
    return;
  }
  if (!ReadAndExecute()) throw Quit();
}

frmMain& Driver::Main() {
  if (!main_) throw CommandError("the program has not been started");
  return *main_;
}

// Splits "form.control.property", of which only one part need be there.
Driver::Target Driver::Find(std::string_view name) {
  Target target;
  target.form = &Main();
  std::string_view rest = name;
  if (Form* named = screen_->Find(rest.substr(0, rest.find('.')))) {
    target.form = named;
    if (named->Name() == rest) return target;
    rest.remove_prefix(named->Name().size() + 1);
  }
  const std::size_t dot = rest.find('.');
  target.control = target.form->Find(rest.substr(0, dot));
  if (target.control != nullptr) {
    if (dot != std::string_view::npos) target.property = rest.substr(dot + 1);
  } else if (rest != name && dot == std::string_view::npos) {
    target.property = rest;  // of the form
  } else {
    throw CommandError("unknown name: " + std::string(name));
  }
  return target;
}

Form& Driver::FindShown(std::string_view name) {
  Main();
  Form* form = screen_->Find(name);
  if (form == nullptr) throw CommandError("unknown form: " + std::string(name));
  if (!form->Visible()) throw CommandError(std::string(name) + " is hidden");
  return *form;
}

Form& Driver::FindForm(std::string_view name) {
  Form& form = FindShown(name);
  if (only_quitting_ && &form != &Main()) throw CommandError(form.Name() + " has to wait");
  return form;
}

Control& Driver::FindControl(std::string_view name) {
  const Target target = Find(name);
  if (target.control == nullptr || !target.property.empty()) {
    throw CommandError("unknown control: " + std::string(name));
  }
  return *target.control;
}

Control& Driver::FindUsable(std::string_view name) {
  Control& control = FindControl(name);
  if (!control.IsUsable() || (only_quitting_ && &control != &Main().cmdQuit))
    throw CommandError(control.Name() + " is disabled or hidden");
  return control;
}

// The control as one of that kind.
template <class T>
T& As(Control& control, std::string_view name, std::string_view kind) {
  T* wanted = dynamic_cast<T*>(&control);
  if (wanted == nullptr) throw CommandError(std::string(name) + " is not a " + std::string(kind));
  return *wanted;
}

template <class T>
T& Driver::FindAs(std::string_view name, std::string_view kind) {
  return As<T>(FindControl(name), name, kind);
}

template <class T>
T& Driver::FindUsableAs(std::string_view name, std::string_view kind) {
  return As<T>(FindUsable(name), name, kind);
}

void Driver::Now(std::string_view arguments) {
  const auto [date, rest] = SplitWord(arguments);
  const auto [time, zone] = SplitWord(rest);
  if (!IsDate(date) || !IsTime(time)) {
    throw CommandError("not a date and time: " + std::string(arguments));
  }
  const int offset = zone.empty() ? 0 : ParseNumber(zone, -kMinutesPerDay, kMinutesPerDay);
  desktop_.SetClock({std::string(date), std::string(time), offset});
}

void Driver::StateFile(std::string_view path) {
  if (main_) throw CommandError("the program has been started already");
  if (path.empty()) throw CommandError("no file is given");
  desktop_.SetStateFile(Utf8Path(path));
}

void Driver::Start(std::string_view /*arguments*/) {
  if (main_) throw CommandError("the program has been started already");
  screen_ = std::make_unique<Screen>();
  main_ = std::make_unique<frmMain>(desktop_, *screen_);
  main_->Load();
}

void Driver::Set(std::string_view arguments) {
  const auto [name, value] = SplitWord(arguments);
  Control& control = FindUsable(name);
  control.SetFocus();
  SetByUser(control, value);
}

void Driver::Choose(std::string_view arguments) {
  const auto [name, text] = SplitWord(arguments);
  auto& list = FindUsableAs<ComboBox>(name, "list");
  for (int i = 0; i < list.ListCount(); ++i) {
    if (list.Items()[static_cast<std::size_t>(i)].text != Unescape(text)) continue;
    list.SetFocus();
    list.SetListIndex(i);
    return;
  }
  throw CommandError("no such item: " + std::string(text));
}

void Driver::Click(std::string_view name) {
  Control& control = FindUsable(name);
  control.SetFocus();
  if (!control.Click()) throw CommandError(control.Name() + " cannot be clicked");
}

void Driver::Menu(std::string_view arguments) {
  const auto [name, caption] = SplitWord(arguments);
  for (const MenuItem& item : FindUsableAs<Label>(name, "label").menu) {
    if (item.caption != caption) continue;
    item.on_click();
    return;
  }
  throw CommandError("no such item: " + std::string(caption));
}

void Driver::Press(std::string_view arguments) {
  const auto [name, code] = SplitWord(arguments);
  int key = ParseNumber(code, 0);
  Main();
  if (screen_->Find(name) != nullptr) {
    FindForm(name).Form_KeyPress(key);
    return;
  }
  if (auto* table = dynamic_cast<Table*>(&FindUsable(name)); table && key == kEnterKey) {
    table->SetFocus();
    table->PressEnter();
    return;
  }
  auto& text = FindUsableAs<TextBox>(name, "text box");
  text.SetFocus();
  text.PressKey(key);
}

void Driver::Select(std::string_view arguments) {
  const auto [name, range] = SplitWord(arguments);
  const auto [start, length] = SplitWord(range);
  auto& text = FindUsableAs<TextBox>(name, "text box");
  const int first = ParseNumber(start, 0);
  const int count = ParseNumber(length, 0);
  text.SetFocus();
  text.Select(static_cast<std::size_t>(first), static_cast<std::size_t>(count));
}

void Driver::MouseUp(std::string_view name) {
  auto& text = FindUsableAs<TextBox>(name, "text box");
  if (text.on_mouse_up) text.on_mouse_up();
}

void Driver::Resize(std::string_view arguments) {
  const auto [name, size] = SplitWord(arguments);
  const auto [width, height] = SplitWord(size);
  Form& form = FindForm(name);
  const int new_width = ParseNumber(width, 1, kLargestLength);
  form.Resize(new_width, ParseNumber(height, 1, kLargestLength));
}

void Driver::Minimise(std::string_view name) { FindForm(name).Minimise(); }

void Driver::Close(std::string_view name) { FindForm(name).Close(); }

void Driver::Get(std::string_view name) {
  const Target target = Find(name);
  std::string_view property = target.property;
  if (property.empty()) {
    property = target.control != nullptr ? DefaultProperty(*target.control) : "Caption";
  }
  const auto text = target.control != nullptr ? PropertyText(*target.control, property)
                                              : PropertyText(*target.form, property);
  if (!text) throw CommandError("no such property: " + std::string(name));
  Print(Escape(*text));
}

void Driver::Items(std::string_view name) {
  const auto& list = FindAs<ComboBox>(name, "list");
  for (const ComboBox::Item& item : list.Items()) Print(Escape(item.text));
  Print(".");
}

void Driver::Focus(std::string_view /*arguments*/) {
  Main();
  const std::string focus = FocusText(*screen_);
  if (focus.empty()) throw CommandError("nothing has the focus");
  Print(focus);
}

void Driver::Messages(std::string_view /*arguments*/) {
  for (const Message& message : desktop_.TakeMessages()) {
    output_ << IconName(message.icon) << '|' << ButtonsName(message.buttons) << '|'
            << Escape(message.title) << '|' << Escape(message.text) << '\n';
  }
  Print(".");
}

void Driver::Printed(std::string_view /*arguments*/) {
  for (const std::string& line : desktop_.TakePrinted()) Print(Escape(line));
  Print(".");
}

void Driver::Answer(std::string_view arguments) {
  const auto [word, path] = SplitWord(arguments);
  if (word == "file") {
    desktop_.QueueSavePath(path.empty() ? std::nullopt : std::optional(Utf8Path(path)));
    return;
  }
  constexpr std::pair<std::string_view, MessageAnswer> kAnswers[] = {
      {"ok", MessageAnswer::kOk},
      {"cancel", MessageAnswer::kCancel},
      {"yes", MessageAnswer::kYes},
      {"no", MessageAnswer::kNo},
  };
  for (const auto& [name, answer] : kAnswers) {
    if (name != arguments) continue;
    desktop_.QueueAnswer(answer);
    return;
  }
  throw CommandError("unknown answer: " + std::string(arguments));
}

void Driver::FireTimer() { Main().Clock.Tick(); }

// Without a name it is the timer of the main window.
void Driver::Tick(std::string_view arguments) {
  const auto [name, times] = SplitWord(arguments);
  if (name.empty() || Matches(name.substr(0, 1), "0")) {
    TickMainClock(name.empty() ? 1 : ParseNumber(arguments, 1));
    return;
  }
  const auto& timer = FindAs<Timer>(name, "timer");
  const int count = times.empty() ? 1 : ParseNumber(times, 1);
  for (int i = 0; i < count; ++i) timer.Tick();
}

// Inside a waiting move each tick is followed by a pass of the move, so the rest are kept for its
// next yields.
void Driver::TickMainClock(int count) {
  const bool inside_handler = running_handlers_ > 1;
  FireTimer();
  if (inside_handler) {
    ticks_left_ = count - 1;
    return;
  }
  for (int i = 1; i < count; ++i) FireTimer();
}

void Driver::During(std::string_view arguments) {
  const auto [count, command] = SplitWord(arguments);
  if (command.empty()) throw CommandError("no command is given");
  yields_until_during_ = ParseNumber(count, 1);
  during_command_ = command;
}

void Driver::Clipboard(std::string_view /*arguments*/) { Print(Escape(desktop_.ClipboardText())); }

void Driver::Key(std::string_view arguments) {
  const auto [name, keys] = SplitWord(arguments);
  Form& form = FindShown(name);
  const bool waits = only_quitting_ && keys != "Ctrl+Q";
  if (waits || !form.PressKeys(keys)) {
    throw CommandError("nothing in " + form.Name() + " takes " + std::string(keys));
  }
}

void Driver::Point(std::string_view arguments) {
  const auto [name, place] = SplitWord(arguments);
  const auto [x, y] = SplitWord(place);
  const DrawingPoint point{ParseFraction(x), ParseFraction(y)};
  auto& drawing = FindUsableAs<Drawing>(name, "drawing");
  drawing.SetFocus();
  drawing.ClickAt(point);
}

void Driver::Rows(std::string_view name) {
  Print(std::to_string(FindAs<Table>(name, "table").RowCount()));
}

void Driver::Cell(std::string_view arguments) {
  const auto [name, place] = SplitWord(arguments);
  const auto [row, column] = SplitWord(place);
  const auto& table = FindAs<Table>(name, "table");
  const std::size_t from_top = ParseRow(row, table);
  Print(Escape(table.cell_text(from_top, ParseColumn(column, table))));
}

void Driver::Sort(std::string_view arguments) {
  const auto [name, column] = SplitWord(arguments);
  const auto& table = FindUsableAs<Table>(name, "table");
  table.ClickHeading(ParseColumn(column, table));
}

void Driver::Dump(std::string_view /*arguments*/) {
  Main();
  for (const Form* form : SortedByName(screen_->Forms())) {
    output_ << form->Name() << '|' << Escape(form->Caption()) << '|' << form->Visible() << '\n';
    for (const Control* control : SortedByName(form->Controls())) {
      output_ << form->Name();
      for (const std::string& field : DumpFields(*control)) output_ << '|' << Escape(field);
      output_ << '\n';
    }
  }
  Print(FocusText(*screen_));
  Print(".");
}

}  // namespace tarnwick
