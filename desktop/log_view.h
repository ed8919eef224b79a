// What goes into the log, and the ways to it, on the screen.
#pragma once

#include "desktop/binder.h"
#include "desktop/panel.h"
#include "log/log_section.h"

namespace tarnwick {

class LogView final : public Panel {
 public:
  LogView(LogSection& section, Binder& binder, QWidget* parent);
};

}  // namespace tarnwick
