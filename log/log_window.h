// The log: plain text that the program writes and the user may edit. Its text box holds it; what
// has not been saved when it is closed goes to a file.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "controls/closable_form.h"
#include "controls/controls.h"
#include "controls/desktop.h"
#include "help/notice.h"

namespace tarnwick {

class frmLog final : public ClosableForm {
 public:
  frmLog(Desktop& desktop, Screen& screen, frmNotice& notice);

  TextBox txbText{*this, "txbText"};
  Button cmdClear{*this, "cmdClear", "Clear log"};
  Button cmdCopyToClipboard{*this, "cmdCopyToClipboard"};
  Button cmdSaveAs{*this, "cmdSaveAs", "Save as ..."};

  // The window has been closed; the log with it.
  Control::Handler on_closed;
  Control::Handler on_discarded;

  // The title of what it says when it saves.
  static constexpr char kSaveTitle[] = "Save log";

  // Replaces the text and brings its end, the newest entry, into view.
  void ShowText(std::string text);
  bool IsEmpty() const { return txbText.Text().empty(); }
  // Whether as much text as this would be more than the log takes.
  static bool IsTooLong(const std::string& text);
  // Keeps the text in the file of kept logs, if it has not been saved since it last changed.
  // Nothing is kept where the state is not. Returns what went wrong, empty if nothing did.
  std::string Keep();
  // Asks whether to erase everything, and does so.
  void cmdClear_Click();

  void Form_Load() override;
  void Form_Activate() override;
  void Form_Resize() override;
  void Form_Unload(bool& cancel) override;

 private:
  void txbText_MouseUp();
  void cmdCopyToClipboard_Click();
  void cmdSaveAs_Click();
  void cmdClose_Click() override;
  std::optional<std::filesystem::path> FileToKeepIn() const;
  void PlaceCopyButton(bool for_selection);
  void PlaceCloseButton();

  Desktop& desktop_;
  frmNotice& notice_;
  bool blnSaved = false;            // the text has not changed since
  bool blnCopiesSelection = false;  // as the copy button says
};

}  // namespace tarnwick
