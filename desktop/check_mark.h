// A small drawn check mark. Its room stays when it is hidden.
#pragma once

#include <QWidget>

namespace tarnwick {

class CheckMark : public QWidget {
 public:
  explicit CheckMark(QWidget* parent);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace tarnwick
