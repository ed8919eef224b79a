#include "desktop/style.h"

#include <QApplication>
#include <QFocusFrame>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleOption>
#include <array>

#include "desktop/look.h"

namespace tarnwick {
namespace {

constexpr int kRingWidth = 2;
constexpr int kRingGap = 1;  // between the ring and what has the focus

bool IsEnabled(const QStyleOption& option) { return (option.state & QStyle::State_Enabled) != 0; }
bool IsDown(const QStyleOption& option) { return (option.state & QStyle::State_Sunken) != 0; }
bool IsOn(const QStyleOption& option) { return (option.state & QStyle::State_On) != 0; }
bool IsPointedAt(const QStyleOption& option) {
  return IsEnabled(option) && (option.state & QStyle::State_MouseOver) != 0;
}

double Radius(const QStyleOption& option) { return option.fontMetrics.height() / 4.0; }
// Of every control of one line.
int ControlHeight(const QFontMetrics& font) { return 9 * font.height() / 5 + 1; }
// Between the edge of a field and its text.
int FieldPadding(const QFontMetrics& font) { return font.height() / 2; }
int ButtonPadding(const QFontMetrics& font) { return 4 * font.height() / 5; }
int ArrowWidth(const QFontMetrics& font) { return 3 * font.height() / 2; }

void DrawBox(QPainter& painter, const QStyleOption& option, const QColor& ground,
             const QColor& edge) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(edge);
  painter.setBrush(ground);
  const QRectF box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.drawRoundedRect(box, Radius(option), Radius(option));
  painter.restore();
}

void DrawField(QPainter& painter, const QStyleOption& option) {
  const bool enabled = IsEnabled(option);
  DrawBox(painter, option, enabled ? Look::kField : Look::kDisabledField,
          enabled ? Look::kFieldEdge : Look::kDisabledEdge);
}

void DrawButton(QPainter& painter, const QStyleOption& option) {
  QPalette::ColorRole ground = QPalette::Button;
  if (IsPointedAt(option)) ground = QPalette::Midlight;
  if (IsDown(option)) ground = QPalette::Mid;
  DrawBox(painter, option, option.palette.color(ground), option.palette.color(QPalette::Light));
}

void DrawEdge(QPainter& painter, const QRect& rect) {
  painter.save();
  painter.setPen(Look::kFieldEdge);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(rect.adjusted(0, 0, -1, -1));
  painter.restore();
}

// The place and colours of the mark of an option button or a check box: an empty field when it is
// not chosen.
struct Mark {
  explicit Mark(const QStyleOption& option)
      : size(std::min(option.rect.width(), option.rect.height()) - 1.0),
        place(QRectF(option.rect).center() - QPointF(size, size) / 2, QSizeF(size, size)),
        edge(IsPointedAt(option) ? Look::kText : Look::kFieldEdge) {
    if (IsOn(option)) edge = Look::kChosen;
    if (!IsEnabled(option)) edge = Look::kDisabledText;
  }
  QPen Pen() const { return {edge, size / 9}; }
  QRectF Inside(double share) const {
    const double margin = size * (1 - share) / 2;
    return place.adjusted(margin, margin, -margin, -margin);
  }

  double size;
  QRectF place;
  QColor edge;
};

void DrawOptionMark(QPainter& painter, const QStyleOption& option) {
  const Mark mark(option);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(mark.Pen());
  painter.setBrush(Look::kField);
  painter.drawEllipse(mark.Inside(0.9));
  if (IsOn(option)) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(mark.edge);
    painter.drawEllipse(mark.Inside(0.5));
  }
  painter.restore();
}

void DrawCheckMark(QPainter& painter, const QStyleOption& option) {
  const Mark mark(option);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(mark.Pen());
  painter.setBrush(IsOn(option) ? mark.edge : Look::kField);
  painter.drawRoundedRect(mark.Inside(0.9), mark.size / 6, mark.size / 6);
  if (IsOn(option)) {
    painter.setPen(QPen(Look::kField, mark.size / 6.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&](double x, double y) {
      return mark.place.topLeft() + mark.size * QPointF(x, y);
    };
    const std::array stroke{at(0.27, 0.52), at(0.44, 0.69), at(0.74, 0.33)};
    painter.drawPolyline(stroke.data(), static_cast<int>(stroke.size()));
  }
  painter.restore();
}

// The heading of a column of a table: its text stands as the cells do, the arrow of the order at
// the other end.
void DrawHeading(QPainter& painter, const QStyleOptionHeader& heading) {
  const bool pointed_at = IsPointedAt(heading);
  painter.fillRect(heading.rect, pointed_at ? Look::kPanelEdge : Look::kPanel);
  painter.save();
  painter.setPen(pointed_at ? Look::kFieldEdge : Look::kPanelEdge);
  painter.drawLine(heading.rect.bottomLeft(), heading.rect.bottomRight());
  painter.drawLine(heading.rect.topRight(), heading.rect.bottomRight());

  const int padding = FieldPadding(heading.fontMetrics);
  QRect text = heading.rect.adjusted(padding, 0, -padding, 0);
  if (heading.sortIndicator != QStyleOptionHeader::None) {
    QRect arrow = text;
    arrow.setWidth(padding);
    if (heading.textAlignment.testFlag(Qt::AlignRight)) {
      text.setLeft(arrow.right() + padding);
    } else {
      arrow.moveRight(text.right());
      text.setRight(arrow.left() - padding);
    }
    const bool ascending = heading.sortIndicator == QStyleOptionHeader::SortDown;
    DrawTriangle(painter, arrow, padding, ascending ? Pointing::kUp : Pointing::kDown,
                 Look::kFieldText);
  }
  painter.setPen(IsEnabled(heading) ? Look::kCaption : Look::kDisabledText);
  painter.drawText(text, static_cast<int>(heading.textAlignment) | Qt::TextSingleLine,
                   heading.fontMetrics.elidedText(heading.text, Qt::ElideRight, text.width()));
  painter.restore();
}

QRect ArrowPlace(const QStyleOption& list) {
  QRect place = list.rect;
  place.setLeft(place.right() + 1 - ArrowWidth(list.fontMetrics));
  return QStyle::visualRect(list.direction, list.rect, place);
}

QRect TextPlace(const QStyleOption& list) {
  const int before = FieldPadding(list.fontMetrics);
  const QRect place = list.rect.adjusted(before, 0, -ArrowWidth(list.fontMetrics), 0);
  return QStyle::visualRect(list.direction, list.rect, place);
}

void DrawList(QPainter& painter, const QStyleOption& option) {
  DrawField(painter, option);
  const QColor color = !IsEnabled(option)    ? Look::kDisabledText
                       : IsPointedAt(option) ? Look::kFieldText
                                             : Look::kCaption;
  DrawTriangle(painter, ArrowPlace(option), option.fontMetrics.height() / 2.0, Pointing::kDown,
               color);
}

void DrawListText(QPainter& painter, const QStyleOptionComboBox& list) {
  const QRect place = TextPlace(list);
  const QString text = list.fontMetrics.elidedText(list.currentText, Qt::ElideRight, place.width());
  painter.save();
  painter.setPen(IsEnabled(list) ? Look::kFieldText : Look::kDisabledFieldText);
  painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
  painter.restore();
}

void DrawRing(QPainter& painter, const QStyleOption& option, const QFocusFrame& frame) {
  if (frame.widget() == nullptr) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(frame.widget()->palette().color(QPalette::Link), kRingWidth));
  painter.setBrush(Qt::NoBrush);
  constexpr double kHalf = kRingWidth / 2.0;
  const double radius = Radius(option) + kRingGap + kHalf;
  painter.drawRoundedRect(QRectF(option.rect).adjusted(kHalf, kHalf, -kHalf, -kHalf), radius,
                          radius);
  painter.restore();
}

class Style final : public QProxyStyle {
 public:
  Style() : QProxyStyle("Fusion") {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override {
    switch (hint) {
      case SH_ComboBox_Popup:  // a list that scrolls, not a menu as high as the screen
      case SH_ComboBox_AllowWheelScrolling:  // a stray turn of the wheel would move the moment
      case SH_FocusFrame_Mask:               // which would cut off the round corners
        return 0;
      case SH_FocusFrame_AboveWidget:
        return 1;
      default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    switch (metric) {
      case PM_FocusFrameHMargin:
      case PM_FocusFrameVMargin:
        return kRingWidth + kRingGap;
      case PM_DefaultFrameWidth:
        return 1;
      case PM_HeaderMargin:
        return FontOf(option).height() / 3;
      case PM_IndicatorWidth:
      case PM_IndicatorHeight:
      case PM_ExclusiveIndicatorWidth:
      case PM_ExclusiveIndicatorHeight:
        return FontOf(option).height();
      default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
  }

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override {
    const QFontMetrics& font = option->fontMetrics;
    switch (type) {
      case CT_PushButton:
        return {contents.width() + 2 * ButtonPadding(font),
                std::max(contents.height(), ControlHeight(font))};
      case CT_ComboBox:
        return {contents.width() + FieldPadding(font) + ArrowWidth(font),
                std::max(contents.height(), ControlHeight(font))};
      case CT_LineEdit:
        return {contents.width() + 2 * FieldPadding(font),
                std::max(contents.height(), ControlHeight(font))};
      case CT_ItemViewItem: {
        const QSize least(0, 3 * font.height() / 2);
        return QProxyStyle::sizeFromContents(type, option, contents, widget).expandedTo(least);
      }
      default:
        return QProxyStyle::sizeFromContents(type, option, contents, widget);
    }
  }

  QRect subElementRect(SubElement element, const QStyleOption* option,
                       const QWidget* widget) const override {
    const QRect place = QProxyStyle::subElementRect(element, option, widget);
    if (element != SE_LineEditContents || !HasFrame(*option)) return place;
    const int padding = FieldPadding(option->fontMetrics) - 2;  // the edit's own margin
    return place.adjusted(padding, 0, -padding, 0);
  }

  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override {
    if (control == CC_ComboBox && part == SC_ComboBoxEditField) return TextPlace(*option);
    if (control == CC_ComboBox && part == SC_ComboBoxArrow) return ArrowPlace(*option);
    return QProxyStyle::subControlRect(control, option, part, widget);
  }

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    switch (element) {
      case PE_FrameFocusRect:  // the ring stands for it
        break;
      case PE_PanelLineEdit:
        if (HasFrame(*option)) DrawField(*painter, *option);
        break;
      case PE_PanelButtonCommand:
        DrawButton(*painter, *option);
        break;
      case PE_IndicatorRadioButton:
        DrawOptionMark(*painter, *option);
        break;
      case PE_IndicatorCheckBox:
        DrawCheckMark(*painter, *option);
        break;
      case PE_PanelMenu:
      case PE_PanelTipLabel:
        painter->fillRect(option->rect, Look::kField);
        DrawEdge(*painter, option->rect);
        break;
      case PE_Frame:
      case PE_FrameMenu:
        DrawEdge(*painter, option->rect);
        break;
      default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    if (element == CE_FocusFrame) {
      if (const auto* frame = qobject_cast<const QFocusFrame*>(widget)) {
        DrawRing(*painter, *option, *frame);
      }
      return;
    }
    const auto* heading = qstyleoption_cast<const QStyleOptionHeader*>(option);
    if (element == CE_Header && heading != nullptr) {
      DrawHeading(*painter, *heading);
      return;
    }
    if (element == CE_HeaderEmptyArea) {
      painter->fillRect(option->rect, Look::kPanel);
      return;
    }
    const auto* list = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    if (element == CE_ComboBoxLabel && list != nullptr && !list->editable) {
      DrawListText(*painter, *list);
      return;
    }
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_PushButtonLabel && button != nullptr && IsTriangle(button->text)) {
      DrawTriangle(*painter, option->rect, option->fontMetrics.height() / 2.0,
                   button->text == "<" ? Pointing::kLeft : Pointing::kRight,
                   option->palette.color(QPalette::ButtonText));
      return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    if (control == CC_ComboBox) {
      DrawList(*painter, *option);
    } else {
      QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
  }

 private:
  static QFontMetrics FontOf(const QStyleOption* option) {
    return option != nullptr ? option->fontMetrics : QFontMetrics(QApplication::font());
  }
  static bool IsTriangle(const QString& caption) { return caption == "<" || caption == ">"; }
  // An edit in a list has no frame of its own.
  static bool HasFrame(const QStyleOption& option) {
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
    return frame != nullptr && frame->lineWidth > 0;
  }
};

}  // namespace

QStyle* MakeStyle() { return new Style; }

void ShowFocusRing() {
  QObject::connect(qApp, &QApplication::focusChanged, qApp,
                   [ring = QPointer<QFocusFrame>()](QWidget* /*old*/, QWidget* now) mutable {
                     // A list that is open belongs to the one it was opened from.
                     if (now != nullptr && now->window()->windowType() == Qt::Popup) return;
                     // It goes with the window that it was last shown in.
                     if (ring == nullptr) ring = new QFocusFrame;
                     ring->setWidget(now);
                   });
}

void DrawTriangle(QPainter& painter, const QRectF& place, double size, Pointing pointing,
                  const QColor& color) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.translate(place.center());
  if (pointing == Pointing::kLeft) painter.rotate(90);
  if (pointing == Pointing::kRight) painter.rotate(-90);
  if (pointing == Pointing::kUp) painter.rotate(180);
  const double half = size / 2;
  painter.drawPolygon(QPolygonF({{-half, -0.6 * half}, {half, -0.6 * half}, {0, 0.6 * half}}));
  painter.restore();
}

}  // namespace tarnwick
