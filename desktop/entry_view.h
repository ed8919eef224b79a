// The entry of a moment on the screen.
#pragma once

#include "desktop/binder.h"
#include "desktop/panel.h"
#include "moment/entry_section.h"

namespace tarnwick {

class EntryView final : public Panel {
 public:
  EntryView(EntrySection& section, Binder& binder, QWidget* parent);

  // The row of the commands, for what else stands there.
  QHBoxLayout& Commands() { return *commands_; }

 private:
  QHBoxLayout* MakeEntryRow();
  QWidget* MakeHint();
  QHBoxLayout* MakeCommandRow();

  EntrySection& section_;
  Binder& binder_;
  QHBoxLayout* commands_;
};

}  // namespace tarnwick
