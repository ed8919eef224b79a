#include "controls/control.h"

#include "controls/controls.h"
#include "controls/form.h"

namespace tarnwick {

Control::Control(Form& form, std::string name) : form_(form), name_(std::move(name)) {
  form_.Register(*this);
}

Control::Control(Frame& frame, std::string name) : Control(frame.Owner(), std::move(name)) {
  frame_ = &frame;
}

bool Control::IsUsable() const {
  if (!enabled_ || !visible_) return false;
  return frame_ != nullptr ? frame_->IsUsable() : form_.Visible();
}

void Control::SetFocus() { form_.MoveFocus(*this); }

}  // namespace tarnwick
