// Text boxes of one line and of several.
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "controls/keys.h"
#include "controls/utf8.h"
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

// What a text box asks of an edit of one line.
struct LineAdapter {
  using Edit = QLineEdit;
  QLineEdit& edit;

  // The text of the control as the edit shows it, and back.
  static QString ToShown(const std::string& text) { return ToQt(text); }
  static std::string FromShown(const QString& shown) { return FromQt(shown); }

  QString Shown() const { return edit.text(); }
  void Show(const QString& text) const { edit.setText(text); }

  Selection Selected() const {
    if (!edit.hasSelectedText()) return {edit.cursorPosition(), 0};
    return {edit.selectionStart(), edit.selectionLength()};
  }
  void Select(Selection selection) const {
    edit.setSelection(static_cast<int>(selection.start), static_cast<int>(selection.length));
  }
};

// The same of an edit of several lines.
struct LinesAdapter {
  using Edit = QPlainTextEdit;
  QPlainTextEdit& edit;

  static QString ToShown(const std::string& text) { return ToShownLines(text); }
  static std::string FromShown(const QString& shown) { return FromShownLines(shown); }

  QString Shown() const { return edit.toPlainText(); }
  // What is only added at the end is added there: setting a long text takes a tenth of a second.
  void Show(const QString& text) const {
    const QString shown = Shown();
    if (shown.isEmpty() || !text.startsWith(shown)) {
      edit.setPlainText(text);
      return;
    }
    QTextCursor end(edit.document());
    end.movePosition(QTextCursor::End);
    end.insertText(text.sliced(shown.size()));
  }

  Selection Selected() const {
    const QTextCursor cursor = edit.textCursor();
    return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
  }
  void Select(Selection selection) const {
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(static_cast<int>(selection.start));
    cursor.setPosition(static_cast<int>(selection.start + selection.length),
                       QTextCursor::KeepAnchor);
    edit.setTextCursor(cursor);
  }
};

// The characters of the control's text that stand before a place in what the edit shows.
template <class Adapter>
std::size_t CharactersBefore(qsizetype place, const QString& shown) {
  return CountCharacters(Adapter::FromShown(shown.left(place)));
}

template <class Adapter>
qsizetype PlaceOf(std::size_t characters, const std::string& text) {
  return Adapter::ToShown(text.substr(0, ByteOffset(text, characters))).size();
}

template <class Adapter>
void ShowSelection(const TextBox& box, const Adapter& adapter) {
  const qsizetype start = PlaceOf<Adapter>(box.SelStart(), box.Text());
  const qsizetype end = PlaceOf<Adapter>(box.SelStart() + box.SelLength(), box.Text());
  const Selection selection{start, end - start};
  if (selection == adapter.Selected()) return;  // keeps the caret at the end the user put it
  const QSignalBlocker blocker(adapter.edit);
  adapter.Select(selection);
}

template <class Adapter>
void ShowText(const TextBox& box, const Adapter& adapter) {
  const QString text = Adapter::ToShown(box.Text());
  if (text == adapter.Shown()) return;
  const QSignalBlocker blocker(adapter.edit);
  adapter.Show(text);
  ShowSelection(box, adapter);
}

template <class Adapter>
void ReportSelection(TextBox& box, const Adapter& adapter, const QString& shown) {
  const Selection selection = adapter.Selected();
  const std::size_t start = CharactersBefore<Adapter>(selection.start, shown);
  const std::size_t end = CharactersBefore<Adapter>(selection.start + selection.length, shown);
  if (start != box.SelStart() || end - start != box.SelLength()) box.Select(start, end - start);
}

template <class Adapter>
void ReportText(TextBox& box, const Adapter& adapter) {
  const QString shown = adapter.Shown();
  if (shown != Adapter::ToShown(box.Text())) box.SetText(Adapter::FromShown(shown));
  ReportSelection(box, adapter, shown);
}

template <class Adapter>
void BindText(TextBox& box, Adapter adapter, HandlerGate& gate) {
  using Edit = typename Adapter::Edit;
  Edit& edit = adapter.edit;
  Mirror(box, Property::kText, edit, [&box, adapter] { ShowText(box, adapter); });
  Mirror(box, Property::kSelection, edit, [&box, adapter] { ShowSelection(box, adapter); });
  const auto report_text = [&box, adapter, &gate] { gate.Run([&] { ReportText(box, adapter); }); };
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
    if (key != 0) gate.RunFor(box, [&] { left = box.PressKey(key); });
    return key != 0 && left == 0;
  });
  new EventHook(surface, [&box, &edit, &gate = gate_](QEvent& event) {
    if (event.type() != QEvent::MouseButtonRelease) return false;
    if (static_cast<const QMouseEvent&>(event).button() != Qt::LeftButton) return false;
    // The release itself may change the selection, which the handler then sees.
    const auto handle = [&box, &gate] {
      if (box.on_mouse_up) gate.RunFor(box, box.on_mouse_up);
    };
    QMetaObject::invokeMethod(&edit, handle, Qt::QueuedConnection);
    return false;
  });
}

void Binder::Bind(TextBox& box, QLineEdit& edit) {
  BindControl(box, edit);
  BindText(box, LineAdapter{edit}, gate_);
  BindTextEvents(box, edit, edit);
}

void Binder::Bind(TextBox& box, QPlainTextEdit& edit) {
  BindControl(box, edit);
  BindText(box, LinesAdapter{edit}, gate_);
  BindTextEvents(box, edit, *edit.viewport());
}

}  // namespace tarnwick
