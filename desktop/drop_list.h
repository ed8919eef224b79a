// A drop-down list that changes only when an item is chosen: while it is closed keys open it, so
// that nobody moves the moment in passing.
#pragma once

#include <QComboBox>

namespace tarnwick {

// Up, Down, Space and F4 open it, with Alt as well; so does a letter, at the next item that begins
// with it. Enter or a click chooses; Escape, Alt with an arrow and F4 close it as it was.
class DropList final : public QComboBox {
 public:
  explicit DropList(QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  bool TakeOpenKey(const QKeyEvent& press);
};

}  // namespace tarnwick
