#include "desktop/drawing_view.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "desktop/characters.h"
#include "desktop/look.h"

namespace tarnwick {
namespace {

constexpr double kSmall = 0.9;         // of the font, for the legend and the texts of marks
constexpr std::size_t kUsualRows = 2;  // of the legend, for which there is always room

// In lines of text.
constexpr double kUsualHeight = 20;  // of the drawing
constexpr double kSampleWidth = 2.2;
constexpr double kSampleHeight = 0.9;
constexpr double kRowHeight = 1.35;
constexpr double kGap = 0.5;  // between drawing and legend, and between a sample and its text
constexpr double kGapOfEntries = 1.2;

}  // namespace

DrawingView::DrawingView(double aspect, std::vector<LayerLook> looks, QWidget* parent)
    : QWidget(parent), aspect_(aspect), looks_(std::move(looks)) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setFocusPolicy(Qt::TabFocus);  // nothing to press, but readers come by what it shows
  setCursor(Qt::CrossCursor);
}

void DrawingView::SetContent(DrawingContent content) {
  content_ = std::move(content);
  std::erase_if(content_.legend, [this](const LegendEntry& entry) {
    return entry.layer < 0 || entry.layer >= static_cast<int>(looks_.size());
  });
  shown_ = QImage();
  update();
}

QFont DrawingView::SmallFont() const { return Scaled(font(), kSmall); }

double DrawingView::Line() const { return QFontMetricsF(SmallFont()).height(); }

QSize DrawingView::sizeHint() const {
  const double height = kUsualHeight * Line();
  return QSizeF(aspect_ * height, height + LegendHeight(kUsualRows)).toSize();
}

double DrawingView::LegendHeight(std::size_t rows) const {
  return (kGap + kRowHeight * static_cast<double>(std::max(rows, kUsualRows))) * Line();
}

double DrawingView::WidthOf(const LegendEntry& entry) const {
  const double text = QFontMetricsF(SmallFont()).horizontalAdvance(ToQt(entry.text));
  return text + (kSampleWidth + kGap) * Line();
}

// Each as full as it gets.
std::vector<DrawingView::LegendRow> DrawingView::LegendRows() const {
  std::vector<LegendRow> rows;
  for (const LegendEntry& entry : content_.legend) {
    const double needed = WidthOf(entry);
    const double added = kGapOfEntries * Line() + needed;
    if (rows.empty() || rows.back().width + added > width()) {
      rows.push_back({{&entry}, std::min<double>(needed, width())});
    } else {
      rows.back().entries.push_back(&entry);
      rows.back().width += added;
    }
  }
  return rows;
}

QRectF DrawingView::PlaceOfDrawing() const {
  const double room = height() - LegendHeight(LegendRows().size());
  const double broad = std::max(0.0, std::min<double>(width(), aspect_ * room));
  return {(width() - broad) / 2, 0, broad, broad / aspect_};
}

std::optional<DrawingPoint> DrawingView::PointAt(QPointF place) const {
  const QRectF drawing = PlaceOfDrawing();
  if (drawing.isEmpty() || !drawing.contains(place)) return std::nullopt;
  const QPointF inside = place - drawing.topLeft();
  return DrawingPoint{inside.x() / drawing.width(), inside.y() / drawing.height()};
}

void DrawingView::PaintEntry(QPainter& painter, const LegendEntry& entry,
                             const QRectF& place) const {
  QRectF sample(0, 0, kSampleWidth * Line(), kSampleHeight * Line());
  sample.moveCenter({place.left() + sample.width() / 2, place.center().y()});
  DrawingPainter(painter, looks_)
      .PaintSample(looks_.at(static_cast<std::size_t>(entry.layer)), sample);
  const QRectF room = place.adjusted(sample.width() + kGap * Line(), 0, 1, 0);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                   painter.fontMetrics().elidedText(ToQt(entry.text), Qt::ElideRight,
                                                    static_cast<int>(room.width()) + 1));
}

void DrawingView::PaintLegend(QPainter& painter) const {
  double top = PlaceOfDrawing().bottom() + kGap * Line();
  for (const LegendRow& row : LegendRows()) {
    double left = (width() - row.width) / 2;
    for (const LegendEntry* entry : row.entries) {
      const double broad = std::min(WidthOf(*entry), row.width);
      PaintEntry(painter, *entry, {left, top, broad, kRowHeight * Line()});
      left += broad + kGapOfEntries * Line();
    }
    top += kRowHeight * Line();
  }
}

QImage DrawingView::Painted(double ratio) const {
  QImage image((QSizeF(size()) * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(SmallFont());
  DrawingPainter(painter, looks_).PaintDrawing(content_, PlaceOfDrawing());
  PaintLegend(painter);
  return image;
}

void DrawingView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const double ratio = PixelRatioOf(painter);
  if (shown_.size() != (QSizeF(size()) * ratio).toSize()) shown_ = Painted(ratio);
  painter.drawImage(0, 0, shown_);
}

}  // namespace tarnwick
