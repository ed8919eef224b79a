// What is chosen and what is not: the colours that tell them apart.
#pragma once

#include <initializer_list>

#include "controls/controls.h"

namespace tarnwick {

inline constexpr Color kSelectedColor{255, 255, 255};
inline constexpr Color kUnselectedColor{200, 200, 200};
inline constexpr Color kResultColor{0, 0, 128};  // navy: the Moon and results

// The chosen one of two option buttons or labels white, the other grey.
void ShowChoice(Control& chosen, Control& other);

// Sets the selected one of several labels apart, for the eye by its colour.
void ShowSelected(Label& label, bool selected);

// The colour of a check box follows its value.
void ShowChoice(CheckBox& box);

// Enables or disables several controls together.
void SetEnabled(std::initializer_list<Control*> controls, bool enabled);

}  // namespace tarnwick
