// Shows a drawing as large as it finds room for, and below it what its layers mean. It is painted
// anew at the size at which it is shown, so that it is sharp at any scaling.
#pragma once

#include <QImage>
#include <QWidget>
#include <optional>
#include <vector>

#include "desktop/drawing_painter.h"

namespace tarnwick {

class DrawingView final : public QWidget {
 public:
  // `aspect` is the width of the drawing in heights of it.
  DrawingView(double aspect, std::vector<LayerLook> looks, QWidget* parent);

  void SetContent(DrawingContent content);

  // The drawing without its legend, in the widget.
  QRectF PlaceOfDrawing() const;
  // The point of the drawing at a place of the widget; nothing beside the drawing.
  std::optional<DrawingPoint> PointAt(QPointF place) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint() / 2; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // Entries of the legend beside one another, and how wide they are together.
  struct LegendRow {
    std::vector<const LegendEntry*> entries;
    double width = 0;
  };

  QFont SmallFont() const;
  double Line() const;
  double WidthOf(const LegendEntry& entry) const;
  std::vector<LegendRow> LegendRows() const;
  double LegendHeight(std::size_t rows) const;
  QImage Painted(double ratio) const;
  void PaintLegend(QPainter& painter) const;
  void PaintEntry(QPainter& painter, const LegendEntry& entry, const QRectF& place) const;

  double aspect_;
  std::vector<LayerLook> looks_;
  DrawingContent content_;
  QImage shown_;  // at the size at which it was last painted; null when it has to be made anew
};

}  // namespace tarnwick
