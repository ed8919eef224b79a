#include "help/notice.h"

#include <algorithm>

#include "controls/save_path.h"
#include "controls/utf8.h"

namespace tarnwick {
namespace {

// Enough to read a word or two, and more for every character.
constexpr int kMilliseconds = 2000;
constexpr int kMillisecondsPerCharacter = 50;

// In twips.
constexpr int kLeastWidth = 2400;
constexpr int kMargins = 900;
constexpr int kWidthPerCharacter = 130;
constexpr int kHeight = 675;
constexpr int kAboveEdge = 900;

}  // namespace

frmNotice::frmNotice(Screen& screen) : Form(screen, "frmNotice", "Notice") {
  lblNotice.on_click = [this] { Hide(); };
  tmrNotice.on_timer = [this] { Hide(); };
}

void frmNotice::ShowOver(const Form& window, const std::string& text) {
  const Rectangle& below = window.Bounds();
  const auto length = static_cast<int>(CountCharacters(text));
  const int width = std::max(kLeastWidth, kMargins + kWidthPerCharacter * length);
  lblNotice.SetCaption(text);
  SetBounds({below.left + (below.width - width) / 2,
             below.top + below.height - kHeight - kAboveEdge, width, kHeight});
  tmrNotice.SetInterval(kMilliseconds + kMillisecondsPerCharacter * length);
  tmrNotice.SetEnabled(false);  // a notice still shown begins its time anew
  tmrNotice.SetEnabled(true);
  ShowInactive();
}

void frmNotice::TellOfSaving(Desktop& desktop, const Form& window, const std::string& what,
                             const std::string& title, const std::string& error) {
  if (error.empty()) {
    ShowOver(window, "Saved");
  } else {
    ReportSaveError(desktop, what, title, error);
  }
}

}  // namespace tarnwick
