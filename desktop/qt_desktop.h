// The real desktop. It needs a QApplication.
#pragma once

#include <QPointer>
#include <QWidget>

#include "controls/desktop.h"
#include "desktop/handler_gate.h"
#include "desktop/print_painter.h"

namespace tarnwick {

class QtDesktop final : public Desktop {
 public:
  explicit QtDesktop(HandlerGate& gate) : gate_(gate) {}

  MessageAnswer ShowMessage(const Message& message) override;
  ClockReading ReadClock() const override;
  std::string ClipboardText() const override;
  void SetClipboardText(const std::string& text) override;
  std::optional<std::filesystem::path> AskSavePath(const std::string& title,
                                                   const std::string& suggestion) override;
  std::string SaveImage(const Control& area, const std::filesystem::path& file) override;
  std::string Print(const PrintedDocument& document, PaperSize paper) override;
  std::string SavePDF(const PrintedDocument& document, const std::filesystem::path& file,
                      PaperSize paper) override;
  PaperSize UsualPaper() const override;
  std::optional<std::filesystem::path> StateFile() const override;
  std::filesystem::path ProgramFolder() const override;
  void OpenWebPage(const std::string& address) override;
  void Yield(YieldMode mode) override;
  // Shuts the gate at once and leaves the event loop when the handlers have returned.
  void EndProgram() override;

 private:
  // The window over which to ask: the active one or, while none is, the last that was. A box that
  // has just been answered leaves none active until the window system says which is next.
  QWidget* WindowInUse();
  // Paints pages; if that takes long, shows how far it is and lets the user stop it.
  std::string PaintWithProgress(const PrintedDocument& document, const PageRange& range,
                                QPagedPaintDevice& device);

  HandlerGate& gate_;
  QPointer<QWidget> window_in_use_;
};

}  // namespace tarnwick
