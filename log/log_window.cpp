#include "log/log_window.h"

#include <utility>

#include "controls/product.h"
#include "controls/save_path.h"
#include "controls/text_file.h"
#include "controls/utf8.h"
#include "log/kept_log.h"

namespace tarnwick {
namespace {

constexpr std::size_t kCapacity = 1'000'000;  // characters

// Places and sizes in twips.
constexpr Rectangle kInitialSize{0, 0, 13200, 6600};
constexpr int kMargin = 150;
constexpr int kTextMargins = 300;   // left and right of the text
constexpr int kBelowText = 700;     // beside the height of the buttons
constexpr int kAboveButtons = 350;  // as much as below them
constexpr int kButtonHeight = 495;
constexpr int kClearWidth = 2100;
constexpr int kSaveAsWidth = 2100;
constexpr int kCloseWidth = 1650;
constexpr int kRightOfClose = 210;
constexpr int kCopyWidth = 3270;
constexpr int kCopySelectionWidth = 4425;
constexpr int kBeforeCopy = 500;
constexpr int kBeforeCopySelection = 1000;

}  // namespace

frmLog::frmLog(Desktop& desktop, Screen& screen, frmNotice& notice)
    : ClosableForm(screen, "frmLog", "Log"), desktop_(desktop), notice_(notice) {
  cmdClear.on_click = [this] { cmdClear_Click(); };
  cmdCopyToClipboard.on_click = [this] { cmdCopyToClipboard_Click(); };
  cmdSaveAs.on_click = [this] { cmdSaveAs_Click(); };
  txbText.Watch([this](Property changed) {
    if (changed == Property::kText) blnSaved = false;
  });
  txbText.on_mouse_up = [this] { txbText_MouseUp(); };
  SetBounds(kInitialSize);
  Form_Resize();
}

bool frmLog::IsTooLong(const std::string& text) {
  // A text has no more characters than bytes: most need no counting.
  return text.size() > kCapacity && CountCharacters(text) > kCapacity;
}

void frmLog::ShowText(std::string text) {
  txbText.SetText(std::move(text));
  txbText.MoveCaretToEnd();
  PlaceCopyButton(false);
}

void frmLog::Form_Load() { cmdCopyToClipboard.SetEnabled(true); }

void frmLog::Form_Activate() {
  SetCaption(std::string("Log for ") + kProgramTitle);
  txbText.MoveCaretToEnd();
  PlaceCopyButton(false);
  PlaceCloseButton();
  cmdCopyToClipboard.SetFocus();
}

void frmLog::PlaceCopyButton(bool for_selection) {
  blnCopiesSelection = for_selection;
  cmdCopyToClipboard.SetCaption(for_selection ? "Copy selected text to clipboard"
                                              : "Copy to clipboard");
  const Rectangle& clear = cmdClear.Bounds();
  cmdCopyToClipboard.SetBounds(
      {clear.left + clear.width + (for_selection ? kBeforeCopySelection : kBeforeCopy), clear.top,
       for_selection ? kCopySelectionWidth : kCopyWidth, clear.height});
}

void frmLog::PlaceCloseButton() {
  const int left = Bounds().width - kRightOfClose - kCloseWidth;
  const int top = cmdClear.Bounds().top;
  cmdClose.SetBounds({left, top, kCloseWidth, kButtonHeight});
  cmdSaveAs.SetBounds({left - kRightOfClose - kSaveAsWidth, top, kSaveAsWidth, kButtonHeight});
}

void frmLog::Form_Resize() {
  if (Minimised()) return;
  const int width = Bounds().width;
  const int height = Bounds().height;
  txbText.SetBounds({kMargin, kMargin, width - kTextMargins, height - kButtonHeight - kBelowText});
  cmdClear.SetBounds(
      {kMargin, height - kButtonHeight - kAboveButtons + kMargin, kClearWidth, kButtonHeight});
  PlaceCloseButton();
  PlaceCopyButton(blnCopiesSelection);
}

void frmLog::txbText_MouseUp() {
  if (cmdCopyToClipboard.Enabled()) PlaceCopyButton(txbText.SelLength() > 0);
}

void frmLog::cmdCopyToClipboard_Click() {
  if (IsEmpty()) return;
  desktop_.SetClipboardText(txbText.SelLength() > 0 ? txbText.SelText() : txbText.Text());
}

void frmLog::cmdClear_Click() {
  const Message question{"Erase all data in the log?", "Clear log", MessageIcon::kQuestion,
                         MessageButtons::kOkCancel};
  if (desktop_.ShowMessage(question) != MessageAnswer::kOk) return;
  txbText.SetText("");
  Hide();
}

void frmLog::cmdSaveAs_Click() {
  const auto file = AskWhereToSave(desktop_, kSaveTitle, "Tarnwick log.txt");
  if (!file) return;
  const std::string error = WriteTextFile(*file, txbText.Text());
  if (error.empty()) blnSaved = true;
  notice_.TellOfSaving(desktop_, *this, "the log", kSaveTitle, error);
}

void frmLog::cmdClose_Click() {
  Hide();
  on_closed();
}

// Nothing where there is nothing to be kept, or no place for it.
std::optional<std::filesystem::path> frmLog::FileToKeepIn() const {
  const auto state = desktop_.StateFile();
  if (blnSaved || IsEmpty() || !state) return std::nullopt;
  return state->parent_path() / kKeptLogName;
}

std::string frmLog::Keep() {
  const auto file = FileToKeepIn();
  if (!file) return {};
  return AppendToTextFile(*file, KeptLogText(desktop_.ReadClock(), txbText.Text()));
}

// The system's close box takes the text out of the window; the next entry begins the log anew. It
// stays open where the text would be lost.
void frmLog::Form_Unload(bool& cancel) {
  const auto file = FileToKeepIn();
  const std::string error = Keep();
  if (!error.empty()) {
    ReportSaveError(desktop_, "the log", kSaveTitle, error);
    cancel = true;
    return;
  }
  txbText.SetText("");
  on_discarded();
  on_closed();
  if (file) notice_.ShowOver(*this, "The log has been added to " + PathText(*file));
}

}  // namespace tarnwick
