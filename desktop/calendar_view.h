// The lunation calendar on the screen: a night sky with a cell for each day.
#pragma once

#include <QWidget>

#include "desktop/binder.h"
#include "lunation_view/calendar_window.h"

class QGridLayout;

namespace tarnwick {

class CalendarView final : public QWidget {
 public:
  CalendarView(frmCalendar& form, HandlerGate& gate);

  QWidget* WidgetOf(const Control& control) const { return binder_.WidgetOf(control); }

 private:
  QWidget* MakePage();
  void AddHeadings(QGridLayout& grid, QWidget* page);
  QWidget* MakeCell(std::size_t index, QWidget* page);
  QWidget* MakeButtons();

  frmCalendar& form_;
  Binder binder_;
};

}  // namespace tarnwick
