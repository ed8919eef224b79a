#include "controls/choice.h"

namespace tarnwick {

void ShowChoice(Control& chosen, Control& other) {
  chosen.SetForeColor(kSelectedColor);
  other.SetForeColor(kUnselectedColor);
}

void ShowSelected(Label& label, bool selected) {
  label.SetSelected(selected);
  label.SetForeColor(selected ? kSelectedColor : kUnselectedColor);
}

void ShowChoice(CheckBox& box) {
  box.SetForeColor(box.Value() ? kSelectedColor : kUnselectedColor);
}

void SetEnabled(std::initializer_list<Control*> controls, bool enabled) {
  for (Control* control : controls) control->SetEnabled(enabled);
}

}  // namespace tarnwick
