#pragma once

#include <QTimer>
#include <QWidget>

#include "app/main_window.h"
#include "desktop/binder.h"

class QGridLayout;
class QHBoxLayout;
class QPushButton;

namespace tarnwick {

// The main window on the screen. It shows itself when its form does.
class MainWindowView final : public QWidget {
 public:
  MainWindowView(frmMain& form, HandlerGate& gate);

  // The widget that a control of the form is bound to, null if it has none.
  QWidget* WidgetOf(const Control& control) const { return binder_.WidgetOf(control); }

 private:
  QWidget* MakeBottomRow();

  // Entry and time system (convert_panel.cpp).
  QWidget* MakeConvertPanel();
  QHBoxLayout* MakeEntryRow(QWidget* panel);
  QHBoxLayout* MakeCommandRow(QWidget* panel);
  void AddTimeZone(QHBoxLayout& row, QWidget* panel);
  void AddOption(OptionButton& option, QWidget* group);
  QPushButton* MakeButton(Button& button, QWidget* parent);

  // One moment in every calendar (dates_panel.cpp) and the Moon (moon_panel.cpp).
  QWidget* MakeDatesPanel();
  void AddDate(frmMain::DateLabel& label, QGridLayout& rows, QWidget* panel);
  QWidget* MakeMoonPanel();
  void AddMoonRow(frmMain::DateLabel& label, QGridLayout& rows, QWidget* panel);

  frmMain& form_;
  Binder binder_;
  QTimer clock_;
};

}  // namespace tarnwick
