#pragma once

#include <QTimer>
#include <QWidget>

#include "app/main_window.h"
#include "desktop/binder.h"

class QGridLayout;
class QHBoxLayout;

namespace tarnwick {

// The main window on the screen. It shows itself when its form does.
class MainWindowView final : public QWidget {
 public:
  MainWindowView(frmMain& form, HandlerGate& gate);

  // The widget that a control of the form is bound to, null if it has none.
  QWidget* WidgetOf(const Control& control) const { return binder_.WidgetOf(control); }

 private:
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  // Tells the form where the label is that the log window opens below.
  void ReportPlace();
  QWidget* MakeButtons();

  // Entry and time system (convert_panel.cpp).
  QWidget* MakeConvertPanel();
  QHBoxLayout* MakeEntryRow(QWidget* panel);
  QHBoxLayout* MakeCommandRow(QWidget* panel);
  void AddTimeZone(QHBoxLayout& row, QWidget* panel);

  // One moment in every calendar (dates_panel.cpp) and the Moon (moon_panel.cpp).
  QWidget* MakeDatesPanel();
  void AddDate(frmMain::DateLabel& label, QGridLayout& rows, QWidget* panel);
  QWidget* MakeMoonPanel();
  void AddMoonRow(frmMain::DateLabel& label, QGridLayout& rows, QWidget* panel);

  // Moves (move_panel.cpp), searches (search_panel.cpp, result_panel.cpp), the history
  // (history_panel.cpp) and the log (log_panel.cpp).
  QWidget* MakeMovePanel();
  QWidget* MakeMoveFrame(QWidget* panel);
  QWidget* MakeStepList(QWidget* frame);
  QHBoxLayout* MakePeriodRow(QWidget* panel);
  QWidget* MakeSteering(QWidget* panel);
  QWidget* MakeSearchPanel();
  QWidget* MakeSearchFrame(QWidget* panel);
  QWidget* MakeResultPanel();
  QWidget* MakeHistoryPanel();
  QWidget* MakeLogPanel();

  frmMain& form_;
  Binder binder_;
  QTimer clock_;
};

}  // namespace tarnwick
