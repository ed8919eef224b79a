// What the controls of a form have in common, whatever their kind.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "controls/observable.h"

namespace tarnwick {

class Form;
class Frame;

struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  friend bool operator==(const Color&, const Color&) = default;
};

// A place in a window, in twips (1/1440 inch), from the window's upper left corner.
struct Rectangle {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  friend bool operator==(const Rectangle&, const Rectangle&) = default;
};

// What every control of a form has. A control holds state and runs its form's handlers; how it
// looks is the business of whoever watches it.
//
// Setting a caption, a text, Enabled, Visible or a colour runs no handler; setting a value or a
// list index does, exactly as the user's own action would.
class Control : public Observable {
 public:
  using Handler = std::function<void()>;

  // A control directly on the form, or inside a frame of it. Arrays are named "name(i)".
  Control(Form& form, std::string name);
  Control(Frame& frame, std::string name);

  const std::string& Name() const { return name_; }
  Form& Owner() const { return form_; }

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { Assign(enabled_, enabled, Property::kEnabled); }

  bool Visible() const { return visible_; }
  void SetVisible(bool visible) { Assign(visible_, visible, Property::kVisible); }

  Color ForeColor() const { return fore_color_; }
  void SetForeColor(Color color) { Assign(fore_color_, color, Property::kForeColor); }

  const std::string& ToolTipText() const { return tool_tip_text_; }
  void SetToolTipText(std::string text) {
    Assign(tool_tip_text_, std::move(text), Property::kToolTipText);
  }

  const Rectangle& Bounds() const { return bounds_; }
  void SetBounds(const Rectangle& bounds) { Assign(bounds_, bounds, Property::kBounds); }

  // Whether the user can reach it: enabled and visible, as are its frames and its window.
  bool IsUsable() const;

  // Moves the focus of its form here; nothing happens where the user could not do it either.
  void SetFocus();
  virtual bool CanTakeFocus() const { return false; }

  // A click of the user; false if this kind of control cannot be clicked.
  virtual bool Click() { return false; }
  // The Enter key pressed here; false if this kind of control does nothing with it.
  virtual bool PressEnter() { return false; }

  Handler on_lost_focus;

 private:
  friend class Form;  // tells the control that gets the focus

  Form& form_;
  Frame* frame_ = nullptr;
  std::string name_;
  bool enabled_ = true;
  bool visible_ = true;
  Color fore_color_;
  std::string tool_tip_text_;
  Rectangle bounds_;
};

}  // namespace tarnwick
