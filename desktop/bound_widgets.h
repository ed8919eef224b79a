// Widgets of which every window has some, tied to their controls.
#pragma once

#include "controls/controls.h"
#include "desktop/binder.h"

class QPushButton;
class QWidget;

namespace tarnwick {

class Area;

enum class ButtonRole {
  kQuiet,
  kAccent,  // what its section is there for
};

// A command, in bold. The Enter key belongs to what has the focus, never to a button elsewhere.
QPushButton* MakeButton(Binder& binder, Button& button, QWidget* parent,
                        ButtonRole role = ButtonRole::kQuiet);

// Adds an option button to the row of its group.
void AddOption(Binder& binder, OptionButton& option, Area& group);

}  // namespace tarnwick
