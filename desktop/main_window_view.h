// The main window on the screen: the views of its sections, and the buttons that belong to none.
#pragma once

#include <QTimer>
#include <QWidget>

#include "app/main_window.h"
#include "desktop/binder.h"

class QHBoxLayout;

namespace tarnwick {

// It shows itself when its form does.
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
  QWidget* MakeEntry();
  QHBoxLayout* MakeRow(const std::initializer_list<std::pair<QWidget*, int>>& parts);
  QWidget* MakeButtons();

  frmMain& form_;
  Binder binder_;
  QTimer clock_;
};

}  // namespace tarnwick
