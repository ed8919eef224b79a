// A short notice, such as "Saved", that goes by itself or on a click and never takes the focus.
#pragma once

#include <string>

#include "controls/controls.h"
#include "controls/form.h"

namespace tarnwick {

class frmNotice final : public Form {
 public:
  explicit frmNotice(Screen& screen);

  Label lblNotice{*this, "lblNotice"};
  Timer tmrNotice{*this, "tmrNotice"};

  // Shows it at the lower edge of a window.
  void ShowOver(const Form& window, const std::string& text);
};

}  // namespace tarnwick
