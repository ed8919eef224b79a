// The moment in every calendar on the screen: a fixed column of captions, and the dates beside it.
#pragma once

#include "desktop/binder.h"
#include "desktop/panel.h"
#include "moment/dates_section.h"

class QGridLayout;

namespace tarnwick {

class DatesView final : public Panel {
 public:
  DatesView(DatesSection& section, Binder& binder, QWidget* parent);

 private:
  void AddRow(ValueLabel& label, QGridLayout& rows);

  DatesSection& section_;
  Binder& binder_;
};

}  // namespace tarnwick
