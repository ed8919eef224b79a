// The kinds of controls of which the windows are made. They know no toolkit: a view shows them, the
// driver works them by text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/control.h"

namespace tarnwick {

// A control with a caption.
class CaptionedControl : public Control {
 public:
  template <class Container>
  CaptionedControl(Container& container, std::string name, std::string caption = {})
      : Control(container, std::move(name)), caption_(std::move(caption)) {}

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption) { Assign(caption_, std::move(caption), Property::kCaption); }

 private:
  std::string caption_;
};

// Holds other controls. While it is disabled or hidden, so is what it holds.
class Frame : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
};

// A control of which a click runs on_click and changes nothing.
template <class Base>
class Clickable : public Base {
 public:
  using Base::Base;
  bool Click() override {
    if (on_click) on_click();
    return true;
  }

  Control::Handler on_click;
};

// An entry of a context menu.
struct MenuItem {
  std::string caption;
  Control::Handler on_click;
  std::string keys;  // that choose it while its control has the focus, "Ctrl+C"; empty for none
};

// A text. It may be one of several of which one is selected, and have a context menu.
class Label : public Clickable<CaptionedControl> {
 public:
  using Clickable::Clickable;

  bool Selected() const { return selected_; }
  void SetSelected(bool selected) { Assign(selected_, selected, Property::kSelected); }

  std::vector<MenuItem> menu;  // complete before a view shows the label

 private:
  bool selected_ = false;
};

class Button : public Clickable<CaptionedControl> {
 public:
  using Clickable::Clickable;
  bool CanTakeFocus() const override { return true; }
  bool PressEnter() override { return Click(); }
};

// A check box. on_click runs when the value changes, whoever changes it.
class CheckBox : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  bool CanTakeFocus() const override { return true; }
  bool Click() override;

  bool Value() const { return value_; }
  void SetValue(bool value);

  Handler on_click;

 private:
  bool value_ = false;
};

class OptionButton;

// The option buttons of which at most one is selected.
class OptionGroup {
 public:
  void Add(OptionButton& button) { buttons_.push_back(&button); }
  void Select(const OptionButton& selected) const;

 private:
  std::vector<OptionButton*> buttons_;
};

// One of a group. on_click runs when it becomes selected; it deselects the others, which runs
// nothing.
class OptionButton : public CaptionedControl {
 public:
  template <class Container>
  OptionButton(Container& container, std::string name, OptionGroup& group, std::string caption = {})
      : CaptionedControl(container, std::move(name), std::move(caption)), group_(group) {
    group_.Add(*this);
  }
  bool CanTakeFocus() const override { return true; }
  bool Click() override;

  bool Value() const { return value_; }
  void SetValue(bool value);

  Handler on_click;

 private:
  friend class OptionGroup;

  OptionGroup& group_;
  bool value_ = false;
};

// A text box. Positions in its text count characters, not bytes.
class TextBox : public Control {
 public:
  // A key press; the handler may swallow the key by setting it to 0.
  using KeyHandler = std::function<void(int& key)>;

  using Control::Control;
  bool CanTakeFocus() const override { return true; }
  bool PressEnter() override;

  // UTF-8; bytes that are not are kept as they are.
  const std::string& Text() const { return text_; }
  void SetText(std::string text);

  std::size_t SelStart() const { return selection_start_; }
  std::size_t SelLength() const { return selection_length_; }
  std::string SelText() const;
  // Selects `length` characters from `start` on, both cut to what there is.
  void Select(std::size_t start, std::size_t length);
  void MoveCaretToEnd();

  // Returns the key that is left after the handler has seen it.
  int PressKey(int key);

  KeyHandler on_key_press;
  Handler on_mouse_up;  // release of the left button

 private:
  std::string text_;
  std::size_t selection_start_ = 0;
  std::size_t selection_length_ = 0;
};

// A drop-down list of items, each with a number of its own beside the text.
class ComboBox : public Control {
 public:
  struct Item {
    std::string text;
    int data = 0;
  };

  using Control::Control;
  bool CanTakeFocus() const override { return true; }

  const std::vector<Item>& Items() const { return items_; }
  int ListCount() const { return static_cast<int>(items_.size()); }
  void AddItem(std::string text, int data = 0);
  // Removes an item; the selection stays on the item it was on, which runs no handler.
  void RemoveItem(int index);

  // The selected index, -1 when none is. Setting it runs on_click, the same index included.
  int ListIndex() const { return list_index_; }
  bool CanSelect(int index) const { return index >= -1 && index < ListCount(); }
  void SetListIndex(int index);  // throws std::out_of_range for an index that there is not

  // Text and number of the selected item; empty and 0 when none is.
  std::string Text() const;
  int ItemData() const;

  Handler on_click;

 private:
  std::vector<Item> items_;
  int list_index_ = -1;
};

// Shows the picture of a file, perhaps retouched.
class Picture : public Clickable<Control> {
 public:
  // Changes pixels, 0xffRRGGBB, row by row from the top, `width` a row. It is called by whoever
  // shows the picture, at the size at which it is shown.
  using Retouch = std::function<void(std::span<std::uint32_t> pixels, int width)>;

  using Clickable::Clickable;

  const std::filesystem::path& File() const { return file_; }
  const Retouch& RetouchOf() const { return retouch_; }
  // An empty path shows nothing.
  void SetPicture(std::filesystem::path file, Retouch retouch = {});

  // What it shows, in words.
  const std::string& Description() const { return description_; }
  void SetDescription(std::string description) {
    Assign(description_, std::move(description), Property::kDescription);
  }

 private:
  std::filesystem::path file_;
  Retouch retouch_;
  std::string description_;
};

// Ticks every Interval milliseconds while enabled. It lies dormant until it is started.
class Timer : public Control {
 public:
  template <class Container>
  Timer(Container& container, std::string name) : Control(container, std::move(name)) {
    SetEnabled(false);
  }

  int Interval() const { return interval_; }
  void SetInterval(int milliseconds) { Assign(interval_, milliseconds, Property::kInterval); }
  void Tick() const;

  Handler on_timer;

 private:
  int interval_ = 0;
};

}  // namespace tarnwick
