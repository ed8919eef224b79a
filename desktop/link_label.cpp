#include "desktop/link_label.h"

#include <QKeyEvent>
#include <QPainter>

#include "desktop/look.h"

namespace tarnwick {

LinkLabel::LinkLabel(Kind kind, QWidget* parent) : QAbstractButton(parent), kind_(kind) {
  setFocusPolicy(kind == Kind::kValue ? Qt::TabFocus : Qt::NoFocus);
  setCursor(Qt::PointingHandCursor);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QMargins LinkLabel::Padding() const {
  const int above = fontMetrics().height() / 6;
  const int beside = kind_ == Kind::kValue ? fontMetrics().height() / 3 : 0;
  return {beside, above, beside, above};
}

QSize LinkLabel::sizeHint() const {
  const int width = fontMetrics().size(Qt::TextShowMnemonic, text()).width();
  return QSize(width, fontMetrics().height()).grownBy(Padding());
}

QColor LinkLabel::TextColor() const {
  const bool lit = kind_ == Kind::kCaption && underMouse() && isEnabled();
  return lit ? Look::kText : palette().color(QPalette::WindowText);
}

void LinkLabel::PaintGround(QPainter& painter) const {
  const double radius = fontMetrics().height() / 4.0;
  const QRectF frame = QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75);
  if (underMouse() && isEnabled()) {
    QColor shade = palette().color(QPalette::WindowText);
    shade.setAlphaF(isDown() ? 0.2F : 0.1F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(shade);
    painter.drawRoundedRect(frame, radius, radius);
  }
}

void LinkLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (kind_ == Kind::kValue) PaintGround(painter);
  painter.setPen(TextColor());
  painter.drawText(rect().marginsRemoved(Padding()),
                   Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic, text());
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
  } else {
    QAbstractButton::keyPressEvent(event);
  }
}

}  // namespace tarnwick
