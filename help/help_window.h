// The windows of the help and of the credits.
#pragma once

#include "controls/closable_form.h"
#include "controls/controls.h"
#include "controls/desktop.h"

namespace tarnwick {

// Who made the program, from what, and under which licence.
class frmCredits final : public ClosableForm {
 public:
  frmCredits(Desktop& desktop, Screen& screen);

  Label lblText{*this, "lblText"};  // with the marks of help_text.h
  Button cmdWebPage{*this, "cmdWebPage"};

  void Form_Activate() override;

 private:
  void cmdWebPage_Click();

  Desktop& desktop_;
};

// What the program does, in a few pages.
class frmHelp final : public ClosableForm {
 public:
  frmHelp(Desktop& desktop, Screen& screen);

  ComboBox lstPages{*this, "lstPages"};
  Label lblText{*this, "lblText"};  // the page chosen, with the marks of help_text.h
  Button cmdCredits{*this, "cmdCredits", "Credits"};

  frmCredits credits_window;

  void Form_Load() override;
  void Form_Activate() override;

 private:
  void lstPages_Click();
  void cmdCredits_Click();
};

}  // namespace tarnwick
