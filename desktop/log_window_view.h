// The log on the screen. The form itself places its controls.
#pragma once

#include <QWidget>

#include "desktop/binder.h"
#include "log/log_window.h"

namespace tarnwick {

class LogWindowView final : public QWidget {
 public:
  LogWindowView(frmLog& form, HandlerGate& gate);

  QWidget* WidgetOf(const Control& control) const { return binder_.WidgetOf(control); }

 private:
  void AddText(TextBox& text);
  void AddButton(Button& button);

  Binder binder_;
};

}  // namespace tarnwick
