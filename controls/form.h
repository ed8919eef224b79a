// Windows that know no toolkit: which there are, which of them is active, and what each holds.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/control.h"

namespace tarnwick {

// The windows of the program and which of them is active. The first one is the main window.
class Screen {
 public:
  const std::vector<Form*>& Forms() const { return forms_; }
  Form* Active() const { return active_; }
  Form* Find(std::string_view name) const;

 private:
  friend class Form;

  std::vector<Form*> forms_;
  Form* active_ = nullptr;
};

// Keys pressed together, and what they click. Modifiers come first, joined by "+"; a blank in the
// name of a key is written "_": "Alt+Left", "Page_Down".
struct Shortcut {
  std::string keys;
  Control* control = nullptr;
};

// The largest side of a window, in twips, and its largest distance from the screen's corner: far
// more than any screen has, and small enough to be added and multiplied.
inline constexpr int kLargestLength = 1'000'000;

// A window: its controls by name, its focus and its own events. A form handles an event by
// overriding it.
class Form : public Observable {
 public:
  Form(Screen& screen, std::string name, std::string caption);
  ~Form() override;

  const std::string& Name() const { return name_; }
  const std::vector<Control*>& Controls() const { return controls_; }
  Control* Find(std::string_view name) const;

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string caption) { Assign(caption_, std::move(caption), Property::kCaption); }

  const Rectangle& Bounds() const { return bounds_; }
  // Lengths beyond kLargestLength become that.
  void SetBounds(const Rectangle& bounds);

  bool Visible() const { return visible_; }
  bool Minimised() const { return minimised_; }
  bool IsActive() const { return screen_.active_ == this; }
  // Whether its Form_Load has run; closing it takes that back.
  bool IsLoaded() const { return loaded_; }
  // Runs Form_Load, unless that has been done.
  void Load();
  // Loads it first.
  void Show();
  // Shows it beside the active window, which stays active.
  void ShowInactive();
  // Leads back to the window that it was opened from.
  void Hide();
  void Minimise();
  // The user has turned to this window.
  void Activate();
  // The user has given the window a new size.
  void Resize(int width, int height);
  // The system close box.
  void Close();

  // The control that has the focus in this window, null when none has.
  Control* Focus() const { return focus_; }
  void MoveFocus(Control& control);

  // Keys that click a control from anywhere in this window; it may stand in another one.
  void AddShortcut(std::string keys, Control& control) {
    shortcuts_.push_back({std::move(keys), &control});
  }
  const std::vector<Shortcut>& Shortcuts() const { return shortcuts_; }
  // The user presses keys in this window: Escape goes to the form, Return to what has the focus, a
  // shortcut clicks its control if that can be used. Returns whether anything took them.
  bool PressKeys(std::string_view keys);

  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  virtual void Form_Resize() {}
  // The window is about to close; setting `cancel` keeps it open.
  virtual void Form_Unload(bool& /*cancel*/) {}
  virtual void Form_KeyPress(int& /*key*/) {}

 private:
  friend class Control;
  void Register(Control& control) { controls_.push_back(&control); }

  Screen& screen_;
  std::string name_;
  std::string caption_;
  Rectangle bounds_;
  bool visible_ = false;
  bool minimised_ = false;
  bool loaded_ = false;
  std::vector<Control*> controls_;
  std::vector<Shortcut> shortcuts_;
  Control* focus_ = nullptr;
  Form* opener_ = nullptr;  // the window that was active before this one was shown
};

}  // namespace tarnwick
