// A short notice, such as "Saved", that goes by itself or on a click and never takes the focus.
#pragma once

#include <string>

#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/form.h"

namespace tarnwick {

class frmNotice final : public Form {
 public:
  explicit frmNotice(Screen& screen);

  Label lblNotice{*this, "lblNotice"};
  Timer tmrNotice{*this, "tmrNotice"};

  // Shows it at the lower edge of a window.
  void ShowOver(const Form& window, const std::string& text);
  // "Saved", over the window; or, if there is an error, a message box with it, under `title`: what
  // became of saving `what`, "the log".
  void TellOfSaving(Desktop& desktop, const Form& window, const std::string& what,
                    const std::string& title, const std::string& error);
};

}  // namespace tarnwick
