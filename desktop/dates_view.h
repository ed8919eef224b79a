// The moment in every calendar on the screen: a fixed column of captions, and the dates beside it.
#pragma once

#include "desktop/binder.h"
#include "desktop/panel.h"
#include "moment/dates_section.h"

class QGridLayout;

namespace tarnwick {

// Where there is room for it the dates are written larger. The row of the current calendar has a
// ground and a bar of its own.
class DatesView final : public Panel {
 public:
  DatesView(DatesSection& section, Binder& binder, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void AddRow(ValueLabel& label, QGridLayout& rows);
  QSize RoomFor(const QFont& font) const;
  void FitFont();

  DatesSection& section_;
  Binder& binder_;
  QWidget* table_;
  const QWidget* current_ = nullptr;  // the date in the current calendar
};

}  // namespace tarnwick
