// The context menu of a label, and the keys of its items.
#pragma once

#include "controls/controls.h"
#include "desktop/handler_gate.h"

class QWidget;

namespace tarnwick {

// Gives a widget the menu of its label, if there is one. By the tab key the widget then takes the
// focus, unless its label is empty.
void BindMenu(Label& label, QWidget& widget, HandlerGate& gate);

}  // namespace tarnwick
