#include "desktop/look.h"

#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QPainter>
#include <QToolTip>
#include <QWidget>

#include "desktop/style.h"

namespace tarnwick {
namespace {

QPalette DarkPalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, Look::kWindow);
  palette.setColor(QPalette::WindowText, Look::kText);
  palette.setColor(QPalette::Base, Look::kField);
  palette.setColor(QPalette::AlternateBase, Look::kPanel);
  palette.setColor(QPalette::Text, Look::kFieldText);
  palette.setColor(QPalette::PlaceholderText, Look::kPlaceholder);
  palette.setColor(QPalette::Button, Look::kButton);
  palette.setColor(QPalette::ButtonText, Look::kButtonText);
  palette.setColor(QPalette::BrightText, Look::kButtonText);
  palette.setColor(QPalette::Highlight, Look::kSelection);
  palette.setColor(QPalette::HighlightedText, Look::kSelectionText);
  palette.setColor(QPalette::Link, Look::kFocusRing);  // of the focus ring too
  palette.setColor(QPalette::LinkVisited, Look::kFocusRing);
  palette.setColor(QPalette::ToolTipBase, Look::kToolTip);
  palette.setColor(QPalette::ToolTipText, Look::kToolTipText);
  // The style draws a button in these: its edge, under the pointer, held down.
  palette.setColor(QPalette::Light, Look::kButtonEdge);
  palette.setColor(QPalette::Midlight, Look::kButtonHover);
  palette.setColor(QPalette::Mid, Look::kButtonPressed);
  palette.setColor(QPalette::Dark, Look::kPanelEdge);
  palette.setColor(QPalette::Shadow, Look::kField);

  palette.setColor(QPalette::Disabled, QPalette::WindowText, Look::kDisabledText);
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, Look::kDisabledText);
  palette.setColor(QPalette::Disabled, QPalette::Button, Look::kDisabledButton);
  palette.setColor(QPalette::Disabled, QPalette::Light, Look::kDisabledEdge);
  palette.setColor(QPalette::Disabled, QPalette::Base, Look::kDisabledField);
  palette.setColor(QPalette::Disabled, QPalette::Text, Look::kDisabledFieldText);
  return palette;
}

}  // namespace

void ApplyLook() {
  QApplication::setStyle(MakeStyle());
  const QPalette palette = DarkPalette();
  QApplication::setPalette(palette);
  ShowFocusRing();
  QToolTip::setPalette(palette);
}

QPalette LightPalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, Look::kLightPanel);
  palette.setColor(QPalette::WindowText, Look::kLightText);
  palette.setColor(QPalette::Link, Look::kLightFocusRing);
  return palette;
}

QPalette AccentPalette() {
  QPalette palette;
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Button, Look::kAccent);
    palette.setColor(group, QPalette::Light, Look::kAccentEdge);
    palette.setColor(group, QPalette::Midlight, Look::kAccentHover);
    palette.setColor(group, QPalette::Mid, Look::kAccentPressed);
  }
  return palette;
}

double PixelRatioOf(const QPainter& painter) {
  return std::max(painter.device()->devicePixelRatioF(), painter.deviceTransform().m11());
}

int Spacing(const QWidget& widget) { return widget.fontMetrics().height() / 2; }

QFont Scaled(const QFont& font, double factor) {
  QFont scaled = font;
  scaled.setPointSizeF(factor * font.pointSizeF());
  return scaled;
}

QFont TitleFont(const QFont& usual) {
  constexpr double kSize = 1.1;
  QFont font = Scaled(usual, kSize);
  font.setBold(true);
  return font;
}

void SetTextColor(QWidget& widget, const QColor& color) {
  QPalette palette;
  if (color.isValid()) {
    palette.setColor(QPalette::Active, QPalette::WindowText, color);
    palette.setColor(QPalette::Inactive, QPalette::WindowText, color);
  }
  widget.setPalette(palette);
}

void ReserveWidth(QComboBox& list, const QString& longest) {
  const QFontMetrics font = list.fontMetrics();
  const int unit = font.horizontalAdvance('X');  // in which a list measures its length
  list.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  list.setMinimumContentsLength((font.horizontalAdvance(longest) + unit - 1) / unit);
}

void KeepRoomWhenHidden(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

}  // namespace tarnwick
