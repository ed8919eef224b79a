#include "controls/form.h"

#include <algorithm>
#include <utility>

#include "controls/keys.h"

namespace tarnwick {
namespace {

template <class T>
T* FindByName(const std::vector<T*>& named, std::string_view name) {
  const auto found =
      std::find_if(named.begin(), named.end(), [&](const T* one) { return one->Name() == name; });
  return found == named.end() ? nullptr : *found;
}

}  // namespace

Form* Screen::Find(std::string_view name) const { return FindByName(forms_, name); }

Form::Form(Screen& screen, std::string name, std::string caption)
    : screen_(screen), name_(std::move(name)), caption_(std::move(caption)) {
  screen_.forms_.push_back(this);
}

Form::~Form() {
  std::erase(screen_.forms_, this);
  if (screen_.active_ == this) screen_.active_ = nullptr;
  for (Form* form : screen_.forms_) {
    if (form->opener_ == this) form->opener_ = nullptr;
  }
}

Control* Form::Find(std::string_view name) const { return FindByName(controls_, name); }

void Form::SetBounds(const Rectangle& bounds) {
  constexpr int kMost = kLargestLength;
  const Rectangle bounded{std::clamp(bounds.left, -kMost, kMost),
                          std::clamp(bounds.top, -kMost, kMost), std::clamp(bounds.width, 0, kMost),
                          std::clamp(bounds.height, 0, kMost)};
  Assign(bounds_, bounded, Property::kBounds);
}

void Form::Load() {
  if (std::exchange(loaded_, true)) return;
  Form_Load();
}

void Form::Show() {
  if (!visible_) opener_ = screen_.active_;
  ShowInactive();
  Activate();
}

void Form::ShowInactive() {
  Load();
  Assign(minimised_, false, Property::kMinimised);
  Assign(visible_, true, Property::kVisible);
}

void Form::Hide() {
  Assign(visible_, false, Property::kVisible);
  if (!IsActive()) return;
  screen_.active_ = nullptr;
  Form* next = opener_ != nullptr && opener_->visible_ ? opener_ : screen_.forms_.front();
  if (next->visible_) next->Activate();
}

void Form::Activate() {
  if (IsActive()) return;
  screen_.active_ = this;
  Notify(Property::kFocus);
  Form_Activate();
}

void Form::Minimise() {
  Assign(minimised_, true, Property::kMinimised);
  Form_Resize();
}

void Form::Resize(int width, int height) {
  SetBounds({bounds_.left, bounds_.top, width, height});
  Form_Resize();
}

void Form::Close() {
  bool cancel = false;
  Form_Unload(cancel);
  if (cancel) return;
  loaded_ = false;
  Hide();
}

bool Form::PressKeys(std::string_view keys) {
  if (keys == kEscapeName) {
    int key = kEscapeKey;
    Form_KeyPress(key);
    return true;
  }
  if (keys == kEnterName) return focus_ != nullptr && focus_->IsUsable() && focus_->PressEnter();
  for (const Shortcut& shortcut : shortcuts_) {
    if (shortcut.keys == keys) return shortcut.control->IsUsable() && shortcut.control->Click();
  }
  return false;
}

void Form::MoveFocus(Control& control) {
  if (!control.CanTakeFocus() || !control.IsUsable()) return;
  Control* left = std::exchange(focus_, &control);
  // Also where it was already: a view's own focus may have strayed to what is no control.
  control.Notify(Property::kFocus);
  if (left != nullptr && left != &control && left->on_lost_focus) left->on_lost_focus();
}

}  // namespace tarnwick
