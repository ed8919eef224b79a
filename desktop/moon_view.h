// The Moon at the moment, on the screen.
#pragma once

#include "desktop/binder.h"
#include "desktop/panel.h"
#include "moment/moon_section.h"

class QGridLayout;

namespace tarnwick {

class MoonView final : public Panel {
 public:
  MoonView(MoonSection& section, Binder& binder, QWidget* parent);

 private:
  void AddRow(ValueLabel& label, QGridLayout& rows);

  Binder& binder_;
};

}  // namespace tarnwick
