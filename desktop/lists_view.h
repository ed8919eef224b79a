// The lists on the screen: what to list above, the table with all the room there is, what can be
// done with it below.
#pragma once

#include <QTimer>
#include <QWidget>

#include "desktop/binder.h"
#include "lists/lists_window.h"

class QHBoxLayout;

namespace tarnwick {

class ListsView final : public QWidget {
 public:
  ListsView(frmLists& form, HandlerGate& gate);

  QWidget* WidgetOf(const Control& control) const { return binder_.WidgetOf(control); }

 private:
  QWidget* MakeWhat();
  void AddChoice(ComboBox& list, const QString& longest, QHBoxLayout& row);
  void AddDate(Label& caption, TextBox& box, QHBoxLayout& row);
  QWidget* MakeColumns();
  QWidget* MakeTitle();
  QWidget* MakeTable();
  QWidget* MakeProgress();
  QWidget* MakeButtons();

  frmLists& form_;
  Binder binder_;
  QTimer timer_;
};

}  // namespace tarnwick
