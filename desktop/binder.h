// The one place where controls and Qt's widgets meet.
#pragma once

#include <map>
#include <span>
#include <string_view>
#include <vector>

#include "controls/controls.h"
#include "controls/drawing.h"
#include "controls/form.h"
#include "controls/table.h"
#include "desktop/handler_gate.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class QShortcut;
class QString;
class QTextBrowser;
class QTimer;
class QWidget;

namespace tarnwick {

class DrawingView;
class LinkLabel;
class Panel;
class PictureView;
class TableView;

// What a view adds to the caption of a control.
struct Wording {
  std::string_view control;  // its name, "lblTime(1)" for one of an array, "lblTime" for all
  char mnemonic = 0;         // the letter of its caption that Alt reaches it by
  std::string_view spoken;   // what it is, for users who do not see what stands around it
  bool announced = false;    // a text to be read out as soon as it is shown
};

// Ties the controls of a form to the widgets of a window. A widget shows the state of its control
// from the moment it is bound, and what the user does with it becomes the control's user action.
//
// Controls and gate outlive the widgets. The widgets have their parents before they are bound: a
// control in a frame is disabled or hidden with the widget of the frame.
class Binder {
 public:
  explicit Binder(HandlerGate& gate, std::span<const Wording> wordings = {}) : gate_(gate) {
    AddWordings(wordings);
  }

  // Wordings for controls that are bound from now on.
  void AddWordings(std::span<const Wording> wordings) {
    wordings_.insert(wordings_.end(), wordings.begin(), wordings.end());
  }

  void Bind(Form& form, QWidget& window);
  void Bind(Frame& frame, QWidget& area);
  void Bind(Frame& frame, Panel& panel);
  void Bind(Label& label, QLabel& text);
  void Bind(Label& label, LinkLabel& link);
  // A text with the marks of help/help_text.h.
  void Bind(Label& label, QTextBrowser& page);
  void Bind(Button& button, QPushButton& push);
  void Bind(CheckBox& box, QCheckBox& check);
  // The widgets of a group, and no others, have one parent in common.
  void Bind(OptionButton& option, QRadioButton& radio);
  void Bind(ComboBox& list, QComboBox& combo);
  void Bind(ComboBox& list, QListWidget& rows);
  void Bind(Picture& picture, QWidget& area);
  void Bind(Picture& picture, PictureView& view);
  void Bind(Drawing& drawing, DrawingView& view);
  void Bind(Table& table, TableView& view);
  void Bind(Timer& timer, QTimer& clock);
  void Bind(TextBox& box, QLineEdit& edit);
  void Bind(TextBox& box, QPlainTextEdit& edit);

  // The widget that a control is bound to, null if it is not.
  QWidget* WidgetOf(const Control& control) const;

 private:
  QShortcut* BindKeys(Form& form, std::string_view keys, QWidget& window);
  void BindControl(Control& control, QWidget& widget);
  void BindFocus(Control& control, QWidget& widget);
  void BindForeColor(Control& control, QWidget& widget);
  void BindTableEvents(Table& table, TableView& view);
  void BindTextEvents(TextBox& box, QWidget& edit, QWidget& surface);
  template <class Widget>
  void BindCaption(CaptionedControl& control, Widget& widget);
  void BindAnnouncement(Label& label, QWidget& widget);
  QString SpokenName(const CaptionedControl& control) const;
  Wording WordingOf(const Control& control) const;

  HandlerGate& gate_;
  std::vector<Wording> wordings_;
  std::map<const Control*, QWidget*> widgets_;
};

}  // namespace tarnwick
