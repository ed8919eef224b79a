#include "desktop/look.h"

#include <QApplication>
#include <QComboBox>
#include <QFontMetrics>
#include <QProxyStyle>
#include <QToolTip>
#include <QWidget>

namespace tarnwick {
namespace {

class Style final : public QProxyStyle {
 public:
  Style() : QProxyStyle("Fusion") {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override {
    switch (hint) {
      case SH_ComboBox_Popup:  // a list that scrolls, not a menu as high as the screen
      case SH_ComboBox_AllowWheelScrolling:  // a stray turn of the wheel would move the moment
        return 0;
      default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
  }
};

QPalette DarkPalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, Look::kWindow);
  palette.setColor(QPalette::WindowText, Look::kText);
  palette.setColor(QPalette::Base, Look::kField);
  palette.setColor(QPalette::AlternateBase, Look::kLightPanel);
  palette.setColor(QPalette::Text, Look::kFieldText);
  palette.setColor(QPalette::PlaceholderText, Look::kPlaceholder);
  palette.setColor(QPalette::Button, Look::kButton);
  palette.setColor(QPalette::ButtonText, Look::kButtonText);
  palette.setColor(QPalette::BrightText, Look::kButtonText);
  palette.setColor(QPalette::Highlight, Look::kSelection);
  palette.setColor(QPalette::HighlightedText, Look::kSelectionText);
  palette.setColor(QPalette::Link, Look::kFocusRing);
  palette.setColor(QPalette::LinkVisited, Look::kFocusRing);
  palette.setColor(QPalette::ToolTipBase, Look::kToolTip);
  palette.setColor(QPalette::ToolTipText, Look::kToolTipText);
  palette.setColor(QPalette::Light, Look::kButton.lighter(130));
  palette.setColor(QPalette::Midlight, Look::kButton.lighter(115));
  palette.setColor(QPalette::Mid, Look::kPanelEdge);
  palette.setColor(QPalette::Dark, Look::kWindow.darker(130));
  palette.setColor(QPalette::Shadow, Look::kWindow.darker(200));

  palette.setColor(QPalette::Disabled, QPalette::WindowText, Look::kDisabledText);
  palette.setColor(QPalette::Disabled, QPalette::ButtonText, Look::kDisabledText);
  palette.setColor(QPalette::Disabled, QPalette::Button, Look::kDisabledButton);
  palette.setColor(QPalette::Disabled, QPalette::Base, Look::kDisabledField);
  palette.setColor(QPalette::Disabled, QPalette::Text, Look::kDisabledFieldText);
  return palette;
}

// A chosen option is a white mark on slate, so that one that is not chosen stays in the background.
QPalette OptionPalette() {
  QPalette palette = DarkPalette();
  palette.setColor(QPalette::Base, Look::kOption);
  palette.setColor(QPalette::Text, Look::kButtonText);
  return palette;
}

}  // namespace

void ApplyLook() {
  QApplication::setStyle(new Style);
  const QPalette palette = DarkPalette();
  QApplication::setPalette(palette);
  QApplication::setPalette(OptionPalette(), "QRadioButton");
  QApplication::setPalette(OptionPalette(), "QCheckBox");
  QToolTip::setPalette(palette);
}

QPalette LightPalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, Look::kLightPanel);
  palette.setColor(QPalette::WindowText, Look::kLightText);
  return palette;
}

int Spacing(const QWidget& widget) { return widget.fontMetrics().height() / 2; }

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
