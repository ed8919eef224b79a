// The port to the outside: all that the forms ask of the computer and of the user.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "controls/printing.h"

namespace tarnwick {

class Control;

enum class MessageIcon { kNone, kExclamation, kInformation, kQuestion };
enum class MessageButtons { kOk, kOkCancel, kYesNo };
enum class MessageAnswer { kOk, kCancel, kYes, kNo };

// How events are let in: those that wait, or first waiting until there is one, or none of the
// user's but that the program be ended.
enum class YieldMode { kPoll, kWait, kOnlyQuitting };

struct Message {
  std::string text;
  std::string title;
  MessageIcon icon = MessageIcon::kNone;
  MessageButtons buttons = MessageButtons::kOk;
  std::optional<MessageAnswer> default_button = {};  // that Enter presses; none: the first
};

// The computer's clock: local date "yyyy-mm-dd", local time "HH:MM:SS" and how many minutes the
// local time is ahead of Greenwich.
struct ClockReading {
  std::string date;
  std::string time;
  int offset_minutes = 0;
};

// The forms' way to the outside. The windows have one that talks to the real desktop, the driver
// and the tests their own.
class Desktop {
 public:
  Desktop() = default;
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;
  virtual ~Desktop() = default;

  // Shows a message box and returns the button that the user pressed.
  virtual MessageAnswer ShowMessage(const Message& message) = 0;
  virtual ClockReading ReadClock() const = 0;

  virtual std::string ClipboardText() const = 0;
  virtual void SetClipboardText(const std::string& text) = 0;

  // Asks where to save a file, `suggestion` being a name for it; nothing if the user gives up.
  virtual std::optional<std::filesystem::path> AskSavePath(const std::string& title,
                                                           const std::string& suggestion) = 0;
  // Saves a control and what lies in it, as shown but at twice the resolution, as a PNG file.
  // Returns what went wrong, empty if nothing did.
  virtual std::string SaveImage(const Control& area, const std::filesystem::path& file) = 0;
  // Asks for a printer and how to print, and prints; on many systems it also prints to a file. The
  // paper is what the user is offered first. Returns what went wrong, empty if nothing did or the
  // user gave up.
  virtual std::string Print(const PrintedDocument& document, PaperSize paper) = 0;
  // Saves what would be printed as a PDF file. Returns what went wrong, empty if nothing did; that
  // the user has stopped it is told too.
  virtual std::string SavePDF(const PrintedDocument& document, const std::filesystem::path& file,
                              PaperSize paper) = 0;
  // The paper that is in use where the computer stands.
  virtual PaperSize UsualPaper() const = 0;
  // The file that the program's state is kept in; nothing where none is kept.
  virtual std::optional<std::filesystem::path> StateFile() const = 0;
  // The folder that the program lies in.
  virtual std::filesystem::path ProgramFolder() const = 0;
  virtual void OpenWebPage(const std::string& address) = 0;

  // Lets waiting events be handled.
  virtual void Yield(YieldMode mode) = 0;
  // Ends the program once the running handlers have returned.
  virtual void EndProgram() = 0;
};

}  // namespace tarnwick
