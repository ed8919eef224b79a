#include "controls/controls.h"

#include <algorithm>
#include <stdexcept>

#include "controls/keys.h"
#include "controls/utf8.h"

namespace tarnwick {
namespace {

void Run(const Control::Handler& handler) {
  if (handler) handler();
}

}  // namespace

void Picture::SetPicture(std::filesystem::path file, Retouch retouch) {
  file_ = std::move(file);
  retouch_ = std::move(retouch);
  Notify(Property::kPicture);
}

bool CheckBox::Click() {
  SetValue(!value_);
  return true;
}

void CheckBox::SetValue(bool value) {
  if (value == value_) return;
  Assign(value_, value, Property::kValue);
  Run(on_click);
}

void OptionGroup::Select(const OptionButton& selected) const {
  for (OptionButton* button : buttons_) {
    if (button != &selected) button->Assign(button->value_, false, Property::kValue);
  }
}

bool OptionButton::Click() {
  SetValue(true);
  return true;
}

void OptionButton::SetValue(bool value) {
  if (value == value_) return;
  if (value) group_.Select(*this);
  Assign(value_, value, Property::kValue);
  if (value) Run(on_click);
}

void TextBox::SetText(std::string text) {
  if (text == text_) return;
  selection_start_ = 0;
  selection_length_ = 0;
  Assign(text_, std::move(text), Property::kText);
}

std::string TextBox::SelText() const {
  const std::size_t begin = ByteOffset(text_, selection_start_);
  const std::size_t end = ByteOffset(text_, selection_start_ + selection_length_);
  return text_.substr(begin, end - begin);
}

void TextBox::Select(std::size_t start, std::size_t length) {
  const std::size_t count = CountCharacters(text_);
  selection_start_ = std::min(start, count);
  selection_length_ = std::min(length, count - selection_start_);
  Notify(Property::kSelection);
}

void TextBox::MoveCaretToEnd() { Select(CountCharacters(text_), 0); }

bool TextBox::PressEnter() {
  PressKey(kEnterKey);
  return true;
}

int TextBox::PressKey(int key) {
  if (on_key_press) on_key_press(key);
  return key;
}

void ComboBox::AddItem(std::string text, int data) {
  items_.push_back({std::move(text), data});
  Notify(Property::kItems);
}

void ComboBox::RemoveItem(int index) {
  items_.erase(items_.begin() + index);
  if (list_index_ == index) list_index_ = -1;
  if (list_index_ > index) --list_index_;
  Notify(Property::kItems);
}

void ComboBox::SetListIndex(int index) {
  if (!CanSelect(index)) throw std::out_of_range(Name() + " has no such item");
  Assign(list_index_, index, Property::kListIndex);
  Run(on_click);
}

std::string ComboBox::Text() const {
  return list_index_ < 0 ? std::string() : items_[static_cast<std::size_t>(list_index_)].text;
}

int ComboBox::ItemData() const {
  return list_index_ < 0 ? 0 : items_[static_cast<std::size_t>(list_index_)].data;
}

void Timer::Tick() const {
  if (Enabled()) Run(on_timer);
}

}  // namespace tarnwick
