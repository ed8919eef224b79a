// Paints the layers of a drawing, with measures that follow from the font.
#pragma once

#include <QColor>
#include <QPolygonF>
#include <QRectF>
#include <vector>

#include "controls/drawing.h"

class QPainter;

namespace tarnwick {

enum class MarkShape { kNone, kStar, kRing };  // with none the text itself stands at the point

// How a layer looks. A colour that is not valid draws nothing.
struct LayerLook {
  QColor area = {};  // of what its lines enclose
  QColor line = {};
  double width = 1;                     // of the line, in sixteenths of a line of text
  Qt::PenStyle dashes = Qt::SolidLine;  // of the line
  MarkShape mark = MarkShape::kNone;
  QColor ink = {};  // of its marks and their texts
};

class DrawingPainter {
 public:
  // A layer has the look of its number; what is in layers beyond them is left out. The font is that
  // of the painter.
  DrawingPainter(QPainter& painter, const std::vector<LayerLook>& looks);

  // Nothing leaves `place`, which gets a ground and an edge.
  void PaintDrawing(const DrawingContent& content, const QRectF& place);
  // A piece of a layer, for the legend.
  void PaintSample(const LayerLook& look, const QRectF& place);

 private:
  void PaintGround(const QRectF& place);
  void PaintEdge(const QRectF& place);
  void NoteMarks(const DrawingContent& content);
  void PaintLayer(const DrawingContent& content, int layer);
  void PaintLine(const LayerLook& look, const QPolygonF& points);
  void PaintMark(const LayerLook& look, QPointF at);
  void PaintText(const LayerLook& look, const DrawnMark& mark);
  QRectF PlaceOfText(QPointF at, QSizeF size, MarkShape mark) const;
  bool IsFree(const QRectF& place) const;
  QPointF PlaceOf(const DrawingPoint& point) const;

  QPainter& painter_;
  const std::vector<LayerLook>& looks_;
  double line_;  // the height of a line of text
  QRectF place_;
  std::vector<QRectF> taken_;  // by marks and their texts
};

}  // namespace tarnwick
