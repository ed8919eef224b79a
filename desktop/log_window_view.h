// The log on the screen. The places that the form gives its controls are those of a window drawn by
// hand; here a layout places them, since fonts and screens differ.
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
  QWidget* MakeText();
  QWidget* MakeButtons();

  frmLog& form_;
  Binder binder_;
};

}  // namespace tarnwick
