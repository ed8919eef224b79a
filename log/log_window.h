// The log: plain text that the program writes and the user may edit. Its text box is the only place
// where it is kept.
#pragma once

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

  // Replaces the text and brings its end, the newest entry, into view.
  void ShowText(std::string text);
  bool IsEmpty() const { return txbText.Text().empty(); }
  // Whether as much text as this would be more than the log takes.
  static bool IsTooLong(const std::string& text);
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
  void PlaceCopyButton(bool for_selection);
  void PlaceCloseButton();

  Desktop& desktop_;
  frmNotice& notice_;
  bool blnCopiesSelection = false;  // as the copy button says
};

}  // namespace tarnwick
