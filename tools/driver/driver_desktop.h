// The desktop of a program without one: a clock that stands still until it is set, message boxes
// that are kept and answered from a queue, a clipboard of its own.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "controls/desktop.h"

namespace tarnwick {

class DriverDesktop final : public Desktop {
 public:
  // Runs at every yield of the program.
  using YieldHook = std::function<void(YieldMode)>;

  // `program_folder` is where the program's pictures lie, in its subfolder "assets".
  DriverDesktop(YieldHook on_yield, std::filesystem::path program_folder)
      : on_yield_(std::move(on_yield)), program_folder_(std::move(program_folder)) {}

  void SetClock(ClockReading clock) { clock_ = std::move(clock); }
  void SetStateFile(std::filesystem::path path) { state_file_ = std::move(path); }
  void QueueAnswer(MessageAnswer answer) { answers_.push_back(answer); }
  void QueueSavePath(std::optional<std::filesystem::path> path) {
    save_paths_.push_back(std::move(path));
  }
  // The message boxes shown since the last call.
  std::vector<Message> TakeMessages();
  // What has been printed or saved as PDF since the last call, "printer|Lunation 332|1": where to,
  // "A4" or "Letter" being files, its title and how many pages, of a table how many rows.
  std::vector<std::string> TakePrinted();
  // Whether the program has asked to end since the last call.
  bool TakeEnd();

  MessageAnswer ShowMessage(const Message& message) override;
  ClockReading ReadClock() const override { return clock_; }
  std::string ClipboardText() const override { return clipboard_; }
  void SetClipboardText(const std::string& text) override { clipboard_ = text; }
  std::optional<std::filesystem::path> AskSavePath(const std::string& title,
                                                   const std::string& suggestion) override;
  std::string SaveImage(const Control& /*area*/, const std::filesystem::path& /*file*/) override {
    return "There is no screen.";
  }
  std::string Print(const PrintedDocument& document, PaperSize paper) override;
  std::string SavePDF(const PrintedDocument& document, const std::filesystem::path& file,
                      PaperSize paper) override;
  PaperSize UsualPaper() const override { return PaperSize::kA4; }
  std::optional<std::filesystem::path> StateFile() const override { return state_file_; }
  std::filesystem::path ProgramFolder() const override { return program_folder_; }
  void OpenWebPage(const std::string& /*address*/) override {}
  void Yield(YieldMode mode) override { on_yield_(mode); }
  void EndProgram() override { ended_ = true; }

 private:
  YieldHook on_yield_;
  std::filesystem::path program_folder_;
  ClockReading clock_{"2024-03-05", "12:00:00", 0};
  std::deque<MessageAnswer> answers_;
  std::deque<std::optional<std::filesystem::path>> save_paths_;
  std::vector<Message> messages_;
  std::vector<std::string> printed_;
  std::string clipboard_;
  std::optional<std::filesystem::path> state_file_;
  bool ended_ = false;
};

}  // namespace tarnwick
