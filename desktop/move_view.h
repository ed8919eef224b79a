// Moves on the screen.
#pragma once

#include "desktop/binder.h"
#include "desktop/panel.h"
#include "navigation/move_section.h"

namespace tarnwick {

// The panel is not the frame itself: what steers a repeated move stands in the panel, and is used
// while the frame is disabled.
class MoveView final : public Panel {
 public:
  MoveView(MoveSection& section, Binder& binder, QWidget* parent);

 private:
  QWidget* MakeFrame();
  QWidget* MakeStepList(QWidget* frame);
  QHBoxLayout* MakePeriodRow();
  QWidget* MakeSteering();

  MoveSection& section_;
  Binder& binder_;
};

}  // namespace tarnwick
