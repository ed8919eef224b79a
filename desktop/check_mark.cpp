#include "desktop/check_mark.h"

#include <QPainter>

#include "desktop/look.h"

namespace tarnwick {

CheckMark::CheckMark(QWidget* parent) : QWidget(parent) {
  QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  policy.setRetainSizeWhenHidden(true);
  setSizePolicy(policy);
}

QSize CheckMark::sizeHint() const { return QSize(1, 1) * fontMetrics().height(); }

void CheckMark::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Look::kCheckMark, width() / 7.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const QPointF stroke[] = {QPointF(0.16 * width(), 0.54 * height()),
                            QPointF(0.40 * width(), 0.78 * height()),
                            QPointF(0.84 * width(), 0.24 * height())};
  painter.drawPolyline(stroke, 3);
}

}  // namespace tarnwick
