// The log preferences on the screen.
#pragma once

#include <QWidget>

#include "desktop/binder.h"
#include "log/log_preferences.h"

namespace tarnwick {

class LogPreferencesView final : public QWidget {
 public:
  LogPreferencesView(frmLogPreferences& form, HandlerGate& gate);

  QWidget* WidgetOf(const Control& control) const { return binder_.WidgetOf(control); }

 private:
  QWidget* MakeIncludePanel();
  QWidget* MakeFormatPanel();
  QWidget* MakeButtons();

  frmLogPreferences& form_;
  Binder binder_;
};

}  // namespace tarnwick
