#include "controls/form.h"

#include <algorithm>
#include <utility>

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
}

Control* Form::Find(std::string_view name) const { return FindByName(controls_, name); }

void Form::Load() {
  if (std::exchange(loaded_, true)) return;
  Form_Load();
}

void Form::Show() {
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
  Form* main = screen_.forms_.front();
  if (main->visible_) main->Activate();
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

void Form::MoveFocus(Control& control) {
  if (!control.CanTakeFocus() || !control.IsUsable()) return;
  Control* left = std::exchange(focus_, &control);
  // Also where it was already: a view's own focus may have strayed to what is no control.
  control.Notify(Property::kFocus);
  if (left != nullptr && left != &control && left->on_lost_focus) left->on_lost_focus();
}

}  // namespace tarnwick
