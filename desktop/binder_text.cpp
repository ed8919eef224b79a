// Text boxes of one line and of several.
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "controls/keys.h"
#include "desktop/binder.h"
#include "desktop/characters.h"
#include "desktop/event_hook.h"
#include "desktop/mirror.h"

namespace tarnwick {
namespace {

// A selection in code units; `start` is the caret where nothing is selected.
struct Selection {
  qsizetype start = 0;
  qsizetype length = 0;
  friend bool operator==(const Selection&, const Selection&) = default;
};

// The character that a key press stands for, 0 if none.
int CharacterOf(const QKeyEvent& press) {
  if (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter) return kEnterKey;
  const auto characters = press.text().toUcs4();
  return characters.isEmpty() ? 0 : static_cast<int>(characters.front());
}

QString ShownText(const TextBox& box, const QLineEdit& /*edit*/) { return ToQt(box.Text()); }
QString ShownText(const TextBox& box, const QPlainTextEdit& /*edit*/) {
  return ToShownLines(box.Text());
}

QString TextOf(const QLineEdit& edit) { return edit.text(); }
QString TextOf(const QPlainTextEdit& edit) { return edit.toPlainText(); }

// The characters of the control's text that stand before a place in the edit.
std::size_t CharactersBefore(qsizetype place, const QLineEdit& edit) {
  return CountCharacters(edit.text().left(place));
}
std::size_t CharactersBefore(qsizetype place, const QPlainTextEdit& edit) {
  const QString before = edit.toPlainText().left(place);
  return CountCharacters(before) + static_cast<std::size_t>(before.count('\n'));
}

qsizetype PlaceOf(std::size_t characters, const TextBox& box, const QLineEdit& /*edit*/) {
  return CodeUnitOffset(ToQt(box.Text()), characters);
}
qsizetype PlaceOf(std::size_t characters, const TextBox& box, const QPlainTextEdit& /*edit*/) {
  const QString text = ToQt(box.Text());
  return text.left(CodeUnitOffset(text, characters)).replace("\r\n", "\n").size();
}

Selection SelectionOf(const QLineEdit& edit) {
  if (!edit.hasSelectedText()) return {edit.cursorPosition(), 0};
  return {edit.selectionStart(), edit.selectionLength()};
}
Selection SelectionOf(const QPlainTextEdit& edit) {
  const QTextCursor cursor = edit.textCursor();
  return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
}

void SetSelection(QLineEdit& edit, Selection selection) {
  edit.setSelection(static_cast<int>(selection.start), static_cast<int>(selection.length));
}
void SetSelection(QPlainTextEdit& edit, Selection selection) {
  QTextCursor cursor = edit.textCursor();
  cursor.setPosition(static_cast<int>(selection.start));
  cursor.setPosition(static_cast<int>(selection.start + selection.length), QTextCursor::KeepAnchor);
  edit.setTextCursor(cursor);
}

template <class Edit>
void ShowSelection(const TextBox& box, Edit& edit) {
  const qsizetype start = PlaceOf(box.SelStart(), box, edit);
  const qsizetype end = PlaceOf(box.SelStart() + box.SelLength(), box, edit);
  const Selection selection{start, end - start};
  if (selection == SelectionOf(edit)) return;  // keeps the caret at the end the user put it
  const QSignalBlocker blocker(edit);
  SetSelection(edit, selection);
}

void SetEditText(QLineEdit& edit, const QString& text) { edit.setText(text); }
// What is only added at the end is added there: setting a long text takes a tenth of a second.
void SetEditText(QPlainTextEdit& edit, const QString& text) {
  const QString shown = edit.toPlainText();
  if (shown.isEmpty() || !text.startsWith(shown)) {
    edit.setPlainText(text);
    return;
  }
  QTextCursor end(edit.document());
  end.movePosition(QTextCursor::End);
  end.insertText(text.sliced(shown.size()));
}

template <class Edit>
void ShowText(const TextBox& box, Edit& edit) {
  const QString text = ShownText(box, edit);
  if (text == TextOf(edit)) return;
  const QSignalBlocker blocker(edit);
  SetEditText(edit, text);
  ShowSelection(box, edit);
}

template <class Edit>
void ReportSelection(TextBox& box, const Edit& edit) {
  const Selection selection = SelectionOf(edit);
  const std::size_t start = CharactersBefore(selection.start, edit);
  const std::size_t end = CharactersBefore(selection.start + selection.length, edit);
  if (start != box.SelStart() || end - start != box.SelLength()) box.Select(start, end - start);
}

std::string TextForControl(const QLineEdit& edit) { return FromQt(edit.text()); }
std::string TextForControl(const QPlainTextEdit& edit) {
  return FromShownLines(edit.toPlainText());
}

template <class Edit>
void ReportText(TextBox& box, const Edit& edit) {
  if (TextOf(edit) != ShownText(box, edit)) box.SetText(TextForControl(edit));
  ReportSelection(box, edit);
}

template <class Edit>
void BindText(TextBox& box, Edit& edit, HandlerGate& gate) {
  Mirror(box, Property::kText, edit, [&] { ShowText(box, edit); });
  Mirror(box, Property::kSelection, edit, [&] { ShowSelection(box, edit); });
  const auto report_text = [&] { gate.Run([&] { ReportText(box, edit); }); };
  // The caret moves before the edit tells of its new text, so the text is looked at here as well.
  QObject::connect(&edit, &Edit::textChanged, &edit, report_text);
  QObject::connect(&edit, &Edit::selectionChanged, &edit, report_text);
  QObject::connect(&edit, &Edit::cursorPositionChanged, &edit, report_text);
}

}  // namespace

// `surface` is the part of the edit that the mouse works on.
void Binder::BindTextEvents(TextBox& box, QWidget& edit, QWidget& surface) {
  new EventHook(edit, [&box, &gate = gate_](QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const int key = CharacterOf(static_cast<const QKeyEvent&>(event));
    int left = key;
    if (key != 0) gate.Run([&] { left = box.PressKey(key); });
    return key != 0 && left == 0;
  });
  new EventHook(surface, [&box, &edit, &gate = gate_](QEvent& event) {
    if (event.type() != QEvent::MouseButtonRelease) return false;
    if (static_cast<const QMouseEvent&>(event).button() != Qt::LeftButton) return false;
    // The release itself may change the selection, which the handler then sees.
    const auto handle = [&box, &gate] {
      if (box.on_mouse_up) gate.Run(box.on_mouse_up);
    };
    QMetaObject::invokeMethod(&edit, handle, Qt::QueuedConnection);
    return false;
  });
}

void Binder::Bind(TextBox& box, QLineEdit& edit) {
  BindControl(box, edit);
  BindText(box, edit, gate_);
  BindTextEvents(box, edit, edit);
}

void Binder::Bind(TextBox& box, QPlainTextEdit& edit) {
  BindControl(box, edit);
  BindText(box, edit, gate_);
  BindTextEvents(box, edit, *edit.viewport());
}

}  // namespace tarnwick
