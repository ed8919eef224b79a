#include "desktop/panel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

#include "desktop/accessible.h"
#include "desktop/look.h"

namespace tarnwick {

Panel::Panel(Ground ground, QWidget* parent)
    : QWidget(parent), ground_(ground), title_(new QLabel(this)), content_(new QVBoxLayout(this)) {
  SetRole(*this, QAccessible::Grouping);
  if (ground == Ground::kLight) setPalette(LightPalette());
  SetTextColor(*title_, ground == Ground::kLight ? Look::kLightCaption : Look::kCaption);
  QFont font = title_->font();
  font.setBold(true);
  title_->setFont(font);
  title_->setTextFormat(Qt::PlainText);

  const int space = Spacing(*this);
  content_->setContentsMargins(2 * space, space, 2 * space, 3 * space / 2);
  content_->setSpacing(space);
  content_->addWidget(title_);
  title_->hide();
}

void Panel::SetTitle(const QString& title) {
  title_->setText(title);
  title_->setVisible(!title.isEmpty());
  setAccessibleName(title);
}

QHBoxLayout& Panel::MakeLine() {
  const int space = Spacing(*this);
  auto* row = new QHBoxLayout;
  row->setSpacing(space);
  row->addWidget(title_);
  row->addSpacing(space / 2);
  content_->setContentsMargins(2 * space, space, 2 * space, space);
  content_->addLayout(row);
  return *row;
}

void Panel::paintEvent(QPaintEvent* /*event*/) {
  const bool light = ground_ == Ground::kLight;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(light ? Look::kLightPanelEdge : Look::kPanelEdge);
  painter.setBrush(light ? Look::kLightPanel : Look::kPanel);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), CornerRadius(),
                          CornerRadius());
}

QVBoxLayout* MakeSections(QWidget& window) {
  const int space = Spacing(window);
  auto* sections = new QVBoxLayout(&window);
  sections->setContentsMargins(space, space, space, space);
  sections->setSpacing(space);
  return sections;
}

Area::Area(int spacing, QWidget* parent) : QWidget(parent), row_(new QHBoxLayout(this)) {
  row_->setContentsMargins(0, 0, 0, 0);
  row_->setSpacing(spacing);
}

}  // namespace tarnwick
