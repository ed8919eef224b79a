#include "desktop/drop_list.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMouseEvent>

#include "desktop/event_hook.h"

namespace tarnwick {
namespace {

bool IsArrow(int key) { return key == Qt::Key_Up || key == Qt::Key_Down; }

bool IsTyped(const QKeyEvent& press) {
  const auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  return !(press.modifiers() & commands) && !press.text().isEmpty() && press.text()[0].isPrint();
}

}  // namespace

DropList::DropList(QWidget* parent) : QComboBox(parent) {
  new EventHook(*view(), [this](QEvent& event) {
    return event.type() == QEvent::KeyPress && TakeOpenKey(static_cast<const QKeyEvent&>(event));
  });
  // A click on a row that cannot be chosen would choose the one that the pointer was over before.
  new EventHook(*view()->viewport(), [this](QEvent& event) {
    if (event.type() != QEvent::MouseButtonRelease) return false;
    const QPoint place = static_cast<const QMouseEvent&>(event).position().toPoint();
    return view()->viewport()->rect().contains(place) &&
           !view()->indexAt(place).flags().testFlag(Qt::ItemIsEnabled);
  });
}

// What would choose without being asked to.
bool DropList::TakeOpenKey(const QKeyEvent& press) {
  const bool closes = press.key() == Qt::Key_F4 ||
                      (IsArrow(press.key()) && press.modifiers().testFlag(Qt::AltModifier));
  if (closes) hidePopup();
  return closes;
}

void DropList::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (IsArrow(key) || key == Qt::Key_Space || key == Qt::Key_F4) {
    showPopup();
  } else if (IsTyped(*event)) {
    showPopup();
    view()->keyboardSearch(event->text());
  } else {
    event->ignore();
  }
}

}  // namespace tarnwick
