#include "desktop/binder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTextBrowser>
#include <QTimer>
#include <algorithm>
#include <optional>
#include <utility>

#include "desktop/accessible.h"
#include "desktop/characters.h"
#include "desktop/context_menu.h"
#include "desktop/drawing_view.h"
#include "desktop/event_hook.h"
#include "desktop/help_html.h"
#include "desktop/link_label.h"
#include "desktop/look.h"
#include "desktop/mirror.h"
#include "desktop/panel.h"
#include "desktop/picture_view.h"

namespace tarnwick {
namespace {

// A line end that ends the caption begins no line.
QString ShownCaption(const Label& label) {
  QString shown = ToShownLines(label.Caption());
  if (shown.endsWith('\n')) shown.chop(1);
  return shown;
}

// What the control is for and, in its own window, the keys that click it.
QString ToolTipOf(const Control& control) {
  QString text = ToQt(control.ToolTipText());
  for (const Shortcut& shortcut : control.Owner().Shortcuts()) {
    if (shortcut.control != &control) continue;
    const QString keys = ToKeySequence(shortcut.keys).toString(QKeySequence::NativeText);
    return text.isEmpty() ? keys : text + " (" + keys + ")";
  }
  return text;
}

// The letter of its caption presses a button at once. Qt would let a tenth of a second pass, within
// which it may be disabled or another one pressed.
void PressAtOnce(QAbstractButton& button) {
  new EventHook(button, [&button](QEvent& event) {
    if (event.type() != QEvent::Shortcut || static_cast<QShortcutEvent&>(event).isAmbiguous()) {
      return false;
    }
    if (button.isCheckable() && button.focusPolicy() & Qt::ClickFocus) {
      button.setFocus(Qt::ShortcutFocusReason);
    }
    button.click();
    return true;
  });
}

// Enter presses the button that has the focus, but only once: held down it would press whatever the
// focus comes to.
void PressByEnter(QPushButton& button) {
  new EventHook(button, [&button](QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const auto& press = static_cast<const QKeyEvent&>(event);
    if (press.key() != Qt::Key_Return && press.key() != Qt::Key_Enter) return false;
    if (!press.isAutoRepeat()) button.click();
    return true;
  });
}

}  // namespace

QWidget* Binder::WidgetOf(const Control& control) const {
  const auto found = widgets_.find(&control);
  return found == widgets_.end() ? nullptr : found->second;
}

Wording Binder::WordingOf(const Control& control) const {
  const std::string_view name = control.Name();
  for (const std::string_view named : {name, name.substr(0, name.find('('))}) {
    const auto found =
        std::find_if(wordings_.begin(), wordings_.end(),
                     [&](const Wording& wording) { return wording.control == named; });
    if (found != wordings_.end()) return *found;
  }
  return {name, 0, {}};
}

// What a screen reader says: what the control is, then what it shows, unless that is a mere sign.
QString Binder::SpokenName(const CaptionedControl& control) const {
  const std::string spoken(WordingOf(control).spoken);
  QString shown = ToQt(control.Caption());
  if (spoken.empty()) return shown;
  const bool readable =
      std::any_of(shown.begin(), shown.end(), [](QChar c) { return c.isLetterOrNumber(); });
  return ToQt(spoken) + (readable ? ": " + shown : QString());
}

// What every control has, whatever its kind.
void Binder::BindControl(Control& control, QWidget& widget) {
  widgets_[&control] = &widget;
  widget.setObjectName(ToQt(control.Name()));
  widget.setAccessibleName(ToQt(std::string(WordingOf(control).spoken)));
  Mirror(control, Property::kEnabled, widget, [&] { widget.setEnabled(control.Enabled()); });
  Mirror(control, Property::kVisible, widget, [&] { widget.setVisible(control.Visible()); });
  Mirror(control, Property::kToolTipText, widget, [&] { widget.setToolTip(ToolTipOf(control)); });
  if (control.CanTakeFocus()) BindFocus(control, widget);
}

void Binder::BindFocus(Control& control, QWidget& widget) {
  Mirror(control, Property::kFocus, widget, [&] {
    if (control.Owner().Focus() == &control && !widget.hasFocus()) widget.setFocus();
  });
  new EventHook(widget, [&control, &gate = gate_](QEvent& event) {
    if (event.type() == QEvent::FocusIn) gate.Run([&] { control.SetFocus(); });
    return false;
  });
}

// Black is the colour of a control that has been given none: the panel's colour stays.
void Binder::BindForeColor(Control& control, QWidget& widget) {
  Mirror(control, Property::kForeColor, widget, [&] {
    const Color color = control.ForeColor();
    SetTextColor(widget, color == Color{} ? QColor() : QColor(color.red, color.green, color.blue));
  });
}

template <class Widget>
void Binder::BindCaption(CaptionedControl& control, Widget& widget) {
  BindControl(control, widget);
  const char mnemonic = WordingOf(control).mnemonic;
  Mirror(control, Property::kCaption, widget, [this, &control, &widget, mnemonic] {
    widget.setText(WithMnemonic(ToQt(control.Caption()), mnemonic));
    widget.setAccessibleName(SpokenName(control));
  });
  PressAtOnce(widget);
}

// Told when the label gets another text, and when it appears.
void Binder::BindAnnouncement(Label& label, QWidget& widget) {
  if (!WordingOf(label).announced) return;
  Mirror(label, Property::kCaption, widget, [&widget] { Announce(widget); });
  new EventHook(widget, [&widget](QEvent& event) {
    if (event.type() == QEvent::Show) Announce(widget);
    return false;
  });
}

void Binder::Bind(Frame& frame, QWidget& area) {
  SetRole(area, QAccessible::Grouping);
  BindControl(frame, area);
  Mirror(frame, Property::kCaption, area,
         [this, &frame, &area] { area.setAccessibleName(SpokenName(frame)); });
}

void Binder::Bind(Frame& frame, Panel& panel) {
  Bind(frame, static_cast<QWidget&>(panel));
  Mirror(frame, Property::kCaption, panel, [&] { panel.SetTitle(ToQt(frame.Caption())); });
}

void Binder::Bind(Label& label, QLabel& text) {
  text.setTextFormat(Qt::PlainText);
  BindControl(label, text);
  BindForeColor(label, text);
  const char mnemonic = WordingOf(label).mnemonic;
  Mirror(label, Property::kCaption, text, [this, &label, &text, mnemonic] {
    const QString caption = ShownCaption(label);
    // A label takes "&" for a mnemonic only if it has a buddy.
    text.setText(text.buddy() != nullptr ? WithMnemonic(caption, mnemonic) : caption);
    text.setAccessibleName(SpokenName(label));
  });
  BindMenu(label, text, gate_);
  BindAnnouncement(label, text);
}

void Binder::Bind(Label& label, LinkLabel& link) {
  BindControl(label, link);
  BindForeColor(label, link);
  Mirror(label, Property::kCaption, link, [&label, &link, spoken = WordingOf(label).spoken] {
    const QString caption = ToQt(label.Caption());
    link.setText(WithMnemonic(caption, 0));
    // It is the value of what has a name; else it is the name.
    link.setAccessibleName(spoken.empty() ? caption : ToQt(std::string(spoken)));
    TellOfValue(link, caption);
  });
  Mirror(label, Property::kSelected, link, [&] {
    link.setChecked(label.Selected());
    TellOfCheck(link);
  });
  BindMenu(label, link, gate_);
  BindAnnouncement(label, link);
  QObject::connect(&link, &LinkLabel::clicked, &link,
                   [&label, &gate = gate_] { gate.RunFor(label, [&] { label.Click(); }); });
}

void Binder::Bind(Label& label, QTextBrowser& page) {
  BindControl(label, page);
  Mirror(label, Property::kCaption, page, [&] { page.setHtml(HelpHtml(label.Caption())); });
}

void Binder::Bind(Button& button, QPushButton& push) {
  BindCaption(button, push);
  PressByEnter(push);
  QObject::connect(&push, &QPushButton::clicked, &push,
                   [&button, &gate = gate_] { gate.RunFor(button, [&] { button.Click(); }); });
}

void Binder::Bind(CheckBox& box, QCheckBox& check) {
  BindCaption(box, check);
  BindForeColor(box, check);
  Mirror(box, Property::kValue, check, [&] { check.setChecked(box.Value()); });
  QObject::connect(&check, &QCheckBox::clicked, &check, [&, &gate = gate_](bool checked) {
    const bool taken = gate.RunFor(box, [&] { box.SetValue(checked); });
    if (!taken) check.setChecked(box.Value());
  });
}

void Binder::Bind(OptionButton& option, QRadioButton& radio) {
  BindCaption(option, radio);
  BindForeColor(option, radio);
  Mirror(option, Property::kValue, radio, [&] {
    if (!option.Value()) radio.setAutoExclusive(false);  // else it refuses to be deselected
    radio.setChecked(option.Value());
    radio.setAutoExclusive(true);
    // The tab key stops at the chosen one of a group, the arrow keys lead to the others.
    radio.setFocusPolicy(option.Value() ? Qt::StrongFocus : Qt::ClickFocus);
  });
  QObject::connect(&radio, &QRadioButton::clicked, &radio,
                   [&option, &gate = gate_] { gate.RunFor(option, [&] { option.Click(); }); });
}

void Binder::Bind(ComboBox& list, QComboBox& combo) {
  BindControl(list, combo);
  Mirror(list, Property::kListIndex, combo, [&] { combo.setCurrentIndex(list.ListIndex()); });
  Mirror(list, Property::kItems, combo, [&] {
    combo.clear();
    for (const ComboBox::Item& item : list.Items()) {
      if (item.text.empty()) {
        combo.insertSeparator(combo.count());  // it cannot be chosen
      } else {
        combo.addItem(ToQt(item.text));
      }
    }
    combo.setCurrentIndex(list.ListIndex());
  });
  // Unlike a change of the index this also tells of the same item chosen again, and it tells only
  // of what the user does.
  QObject::connect(&combo, &QComboBox::activated, &combo, [&, &gate = gate_](int index) {
    const bool taken = gate.RunFor(list, [&] { list.SetListIndex(index); });
    if (!taken) combo.setCurrentIndex(list.ListIndex());
  });
}

void Binder::Bind(ComboBox& list, QListWidget& rows) {
  BindControl(list, rows);
  const auto show_index = [&] {
    const QSignalBlocker blocker(rows);
    rows.setCurrentRow(list.ListIndex());
  };
  Mirror(list, Property::kItems, rows, [&list, &rows, show_index] {
    const QSignalBlocker blocker(rows);
    rows.clear();
    for (const ComboBox::Item& item : list.Items()) rows.addItem(ToQt(item.text));
    show_index();
  });
  Mirror(list, Property::kListIndex, rows, show_index);
  QObject::connect(&rows, &QListWidget::currentRowChanged, &rows, [&list, &gate = gate_](int row) {
    gate.RunFor(list, [&] { list.SetListIndex(row); });
  });
}

void Binder::Bind(Picture& picture, QWidget& area) {
  SetRole(area, QAccessible::Graphic);
  BindControl(picture, area);
  Mirror(picture, Property::kDescription, area, [&] {
    if (!picture.Description().empty()) area.setAccessibleName(ToQt(picture.Description()));
  });
  new EventHook(area, [&picture, &area, &gate = gate_](QEvent& event) {
    if (event.type() != QEvent::MouseButtonRelease) return false;
    const auto& release = static_cast<const QMouseEvent&>(event);
    if (release.button() == Qt::LeftButton && area.rect().contains(release.position().toPoint())) {
      gate.RunFor(picture, [&] { picture.Click(); });
    }
    return false;
  });
}

void Binder::Bind(Picture& picture, PictureView& view) {
  Bind(picture, static_cast<QWidget&>(view));
  Mirror(picture, Property::kPicture, view, [&picture, &view, &gate = gate_] {
    PictureView::Retouch retouch;
    if (picture.RetouchOf()) {
      retouch = [of = picture.RetouchOf(), &gate](std::span<std::uint32_t> pixels, int width) {
        gate.Run([&] { of(pixels, width); });
      };
    }
    view.SetPicture(picture.File(), std::move(retouch));
  });
}

void Binder::Bind(Drawing& drawing, DrawingView& view) {
  SetRole(view, QAccessible::Graphic);
  BindControl(drawing, view);
  Mirror(drawing, Property::kDescription, view,
         [&] { view.setAccessibleDescription(ToQt(drawing.Description())); });
  Mirror(drawing, Property::kDrawing, view, [&] { view.SetContent(drawing.Content()); });
  new EventHook(view, [&drawing, &view, &gate = gate_](QEvent& event) {
    if (event.type() != QEvent::MouseButtonRelease) return false;
    const auto& release = static_cast<const QMouseEvent&>(event);
    const std::optional<DrawingPoint> point = view.PointAt(release.position());
    if (release.button() == Qt::LeftButton && point) {
      gate.RunFor(drawing, [&] { drawing.ClickAt(*point); });
    }
    return false;
  });
}

void Binder::Bind(Timer& timer, QTimer& clock) {
  clock.setTimerType(Qt::PreciseTimer);  // a coarse one strays by a twentieth
  const auto show = [&] {
    if (timer.Enabled() && timer.Interval() > 0) {
      clock.start(timer.Interval());
    } else {
      clock.stop();
    }
  };
  Mirror(timer, Property::kEnabled, clock, show);
  Mirror(timer, Property::kInterval, clock, show);
  QObject::connect(&clock, &QTimer::timeout, &clock,
                   [&timer, &gate = gate_] { gate.Run([&] { timer.Tick(); }); });
}

}  // namespace tarnwick
