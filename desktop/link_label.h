// A text that can be clicked, by mouse or, where it takes the focus, by Enter and the space bar.
// It looks like a plain label until it is pointed at or has the focus.
#pragma once

#include <QAbstractButton>

namespace tarnwick {

class LinkLabel : public QAbstractButton {
  Q_OBJECT

 public:
  enum class Kind {
    kCaption,  // reached by the mouse alone
    kValue,    // takes the focus by the tab key, not by a click
  };

  LinkLabel(Kind kind, QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  // One of several that can be current: its owner marks it, not a click.
  void nextCheckState() override {}

 private:
  QMargins Padding() const;
  QColor TextColor() const;
  void PaintGround(QPainter& painter) const;

  Kind kind_;
};

}  // namespace tarnwick
