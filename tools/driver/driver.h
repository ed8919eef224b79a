// Runs the program by text: one command a line, each answered before the next is read. A command
// that cannot be carried out prints "error: ..." and changes nothing.
#pragma once

#include <filesystem>
#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "app/main_window.h"
#include "controls/controls.h"
#include "controls/form.h"
#include "tools/driver/driver_desktop.h"

namespace tarnwick {

class Driver {
 public:
  // `program_folder` is where the program's files lie.
  Driver(std::istream& input, std::ostream& output, std::filesystem::path program_folder);

  // Carries out commands until "quit" or the end of the input. Returns 0, or 1 if any was in error.
  int Run();

  // The windows; null unless the program has been started.
  const frmMain* MainWindow() const { return main_.get(); }
  const Screen* Windows() const { return screen_.get(); }
  // While a command is being read: whether it is for the running move.
  bool IsInsideHandler() const { return running_handlers_ > 0; }

 private:
  struct Command;
  struct Target;   // a form and perhaps a control and a property of it
  struct Quit {};  // thrown out of a running move when the input ends

  static const Command kCommands[];

  bool ReadAndExecute();
  void Execute(const std::string& line);
  void Dispatch(const std::string& line);
  void OnYield(YieldMode mode);
  void EndIfAsked();

  frmMain& Main();
  Target Find(std::string_view name);
  Form& FindShown(std::string_view name);
  Form& FindForm(std::string_view name);
  Control& FindControl(std::string_view name);
  Control& FindUsable(std::string_view name);
  template <class T>
  T& FindAs(std::string_view name, std::string_view kind);
  template <class T>
  T& FindUsableAs(std::string_view name, std::string_view kind);

  void Now(std::string_view arguments);
  void StateFile(std::string_view path);
  void Start(std::string_view arguments);
  void Set(std::string_view arguments);
  void Choose(std::string_view arguments);
  void Click(std::string_view name);
  void Menu(std::string_view arguments);
  void Press(std::string_view arguments);
  void Select(std::string_view arguments);
  void MouseUp(std::string_view name);
  void Resize(std::string_view arguments);
  void Minimise(std::string_view name);
  void Close(std::string_view name);
  void Get(std::string_view name);
  void Items(std::string_view name);
  void Focus(std::string_view arguments);
  void Messages(std::string_view arguments);
  void Printed(std::string_view arguments);
  void Answer(std::string_view arguments);
  void Tick(std::string_view arguments);
  void TickMainClock(int count);
  void During(std::string_view arguments);
  void Clipboard(std::string_view arguments);
  void Dump(std::string_view arguments);
  void Key(std::string_view arguments);
  void Point(std::string_view arguments);
  void Rows(std::string_view name);
  void Cell(std::string_view arguments);
  void Sort(std::string_view arguments);

  void Print(std::string_view text) { output_ << text << '\n'; }
  void FireTimer();

  std::istream& input_;
  std::ostream& output_;
  bool failed_ = false;

  DriverDesktop desktop_;
  std::unique_ptr<Screen> screen_;
  std::unique_ptr<frmMain> main_;

  int running_handlers_ = 0;     // of commands not yet finished, one inside the other
  int ticks_left_ = 0;           // of a "tick N" that the running move has not had yet
  int yields_until_during_ = 0;  // 0: nothing is to be run
  std::string during_command_;
  bool only_quitting_ = false;  // the yield takes nothing of the user's but that he quits
};

}  // namespace tarnwick
