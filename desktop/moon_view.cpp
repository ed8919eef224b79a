#include "desktop/moon_view.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QRadialGradient>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/look.h"
#include "desktop/picture_view.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"picMoon", 0, "The Moon at the moment"},
    {"lblPhaseOfMoon(1)", 0, "Phase of the Moon"},
    {"lblAgeOfMoon(1)", 0, "Age of the Moon"},
    {"lblDeltaT(1)", 0, "Delta T"},
};

// As high as the dates beside it, with the texts.
constexpr int kPictureLines = 9;
constexpr char kLongestAge[] = "[-64316] 29 days, 23 hrs, 59 mins (100.0%)";

}  // namespace

MoonView::MoonView(MoonSection& section, Binder& binder, QWidget* parent)
    : Panel(Ground::kDark, parent), binder_(binder) {
  binder_.AddWordings(kWordings);
  setAccessibleName("Moon");
  Content().setContentsMargins(0, Spacing(*this), 0, 0);
  auto* picture = new PictureView(kPictureLines, this, PictureView::Ground::kSky);
  binder_.Bind(section.picMoon, *picture);
  Content().addWidget(picture, 1);
  facts_ = MakeFacts(section);
  Content().addWidget(facts_);
}

QWidget* MoonView::MakeFacts(MoonSection& section) {
  const int space = Spacing(*this);
  auto* facts = new QWidget(this);
  facts->setPalette(LightPalette());
  auto* rows = new QGridLayout(facts);
  rows->setContentsMargins(2 * space, 3 * space / 2, 2 * space, 3 * space / 2);
  rows->setHorizontalSpacing(2 * space);
  rows->setVerticalSpacing(space / 2);
  rows->setColumnStretch(1, 1);
  rows->setColumnMinimumWidth(1, fontMetrics().horizontalAdvance(kLongestAge) + space);
  AddRow(section.lblPhaseOfMoon, *rows);
  AddRow(section.lblAgeOfMoon, *rows);
  AddRow(section.lblDeltaT, *rows);
  return facts;
}

// `ratio` is the number of pixels to a unit of the screen.
QImage MoonView::PaintedGround(double ratio) const {
  const QRect sky(0, 0, width(), facts_->y());
  QRadialGradient glow(sky.center(), 0.75 * std::max(sky.width(), sky.height()));
  glow.setColorAt(0, Look::kSkyGlow);
  glow.setColorAt(1, Look::kSky);

  QImage ground((QSizeF(size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
  ground.setDevicePixelRatio(ratio);
  ground.fill(Qt::transparent);
  QPainter painter(&ground);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const auto fill = [&](const QRect& part, const QBrush& brush) {
    painter.setClipRect(part);
    painter.setBrush(brush);
    painter.drawRoundedRect(rect(), CornerRadius(), CornerRadius());
  };
  fill(sky, glow);
  fill(facts_->geometry(), Look::kLightPanel);
  return ground;
}

void MoonView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const double ratio = PixelRatioOf(painter);
  if (ground_.size() != (QSizeF(size()) * ratio).toSize() || facts_top_ != facts_->y()) {
    ground_ = PaintedGround(ratio);
    facts_top_ = facts_->y();
  }
  painter.drawImage(0, 0, ground_);
}

void MoonView::AddRow(ValueLabel& label, QGridLayout& rows) {
  const int row = rows.rowCount();
  auto* caption = new QLabel(rows.parentWidget());
  binder_.Bind(label[0], *caption);
  SetTextColor(*caption, Look::kLightCaption);
  rows.addWidget(caption, row, 0);

  auto* value = new QLabel(rows.parentWidget());
  binder_.Bind(label[1], *value);
  rows.addWidget(value, row, 1);
}

}  // namespace tarnwick
