// The moments of the latest results on the screen.
#pragma once

#include "desktop/binder.h"
#include "desktop/panel.h"
#include "navigation/history_section.h"

namespace tarnwick {

class HistoryView final : public Panel {
 public:
  HistoryView(HistorySection& section, Binder& binder, QWidget* parent);
};

}  // namespace tarnwick
