#include "help/notice.h"

namespace tarnwick {
namespace {

constexpr int kMilliseconds = 2000;  // enough to read a word or two

// In twips.
constexpr int kWidth = 2400;
constexpr int kHeight = 675;
constexpr int kAboveEdge = 900;

}  // namespace

frmNotice::frmNotice(Screen& screen) : Form(screen, "frmNotice", "Notice") {
  lblNotice.on_click = [this] { Hide(); };
  tmrNotice.on_timer = [this] { Hide(); };
  tmrNotice.SetInterval(kMilliseconds);
}

void frmNotice::ShowOver(const Form& window, const std::string& text) {
  const Rectangle& below = window.Bounds();
  lblNotice.SetCaption(text);
  SetBounds({below.left + (below.width - kWidth) / 2,
             below.top + below.height - kHeight - kAboveEdge, kWidth, kHeight});
  tmrNotice.SetEnabled(false);  // a notice still shown begins its time anew
  tmrNotice.SetEnabled(true);
  ShowInactive();
}

}  // namespace tarnwick
