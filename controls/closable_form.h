// A window beside the main one: its button "Close" and the Escape key put it away.
#pragma once

#include <string>
#include <utility>

#include "controls/controls.h"
#include "controls/form.h"
#include "controls/keys.h"

namespace tarnwick {

class ClosableForm : public Form {
 public:
  ClosableForm(Screen& screen, std::string name, std::string caption)
      : Form(screen, std::move(name), std::move(caption)) {
    cmdClose.on_click = [this] { cmdClose_Click(); };
  }

  Button cmdClose{*this, "cmdClose", "Close"};

  void Form_KeyPress(int& key) override {
    if (key == kEscapeKey) cmdClose_Click();
  }

 protected:
  virtual void cmdClose_Click() { Hide(); }
};

}  // namespace tarnwick
