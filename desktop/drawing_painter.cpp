#include "desktop/drawing_painter.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "desktop/characters.h"
#include "desktop/look.h"

namespace tarnwick {
namespace {

// In lines of text.
constexpr double kThin = 1.0 / 16;
constexpr double kMarkRadius = 0.35;
constexpr double kHalo = 0.25;  // lets a mark stand out from the lines below
constexpr double kTextHalo = 0.4;

QPainterPath Star(QPointF at, double radius) {
  constexpr int kCorners = 10;  // every other one lies inside
  QPolygonF star;
  for (int i = 0; i < kCorners; ++i) {
    const double angle = std::numbers::pi * (2.0 * i / kCorners - 0.5);
    const double distance = i % 2 == 0 ? 1.3 * radius : 0.55 * radius;
    star << at + distance * QPointF(std::cos(angle), std::sin(angle));
  }
  QPainterPath path;
  path.addPolygon(star);
  path.closeSubpath();
  return path;
}

QPainterPath Disc(QPointF at, double radius) {
  QPainterPath path;
  path.addEllipse(at, radius, radius);
  return path;
}

// As near as it can be, its upper left corner at least.
QRectF MovedInside(QRectF place, const QRectF& room) {
  place.moveRight(std::min(place.right(), room.right()));
  place.moveBottom(std::min(place.bottom(), room.bottom()));
  place.moveLeft(std::max(place.left(), room.left()));
  place.moveTop(std::max(place.top(), room.top()));
  return place;
}

}  // namespace

DrawingPainter::DrawingPainter(QPainter& painter, const std::vector<LayerLook>& looks)
    : painter_(painter), looks_(looks), line_(QFontMetricsF(painter.font()).height()) {}

void DrawingPainter::PaintGround(const QRectF& place) { painter_.fillRect(place, Look::kPaper); }

void DrawingPainter::PaintEdge(const QRectF& place) {
  painter_.setPen(QPen(Look::kMapEdge, kThin * line_));
  painter_.setBrush(Qt::NoBrush);
  const double half = kThin * line_ / 2;
  painter_.drawRect(place.adjusted(half, half, -half, -half));
}

void DrawingPainter::PaintDrawing(const DrawingContent& content, const QRectF& place) {
  place_ = place;
  NoteMarks(content);
  painter_.save();
  PaintGround(place);
  painter_.setClipRect(place);
  for (int layer = 0; layer < static_cast<int>(looks_.size()); ++layer) PaintLayer(content, layer);
  painter_.restore();
  PaintEdge(place);
}

// Beforehand, so that no text lies where a mark comes.
void DrawingPainter::NoteMarks(const DrawingContent& content) {
  taken_.clear();
  const QPointF reach(kMarkRadius * line_, kMarkRadius * line_);
  for (const DrawnMark& mark : content.marks) {
    if (mark.layer < 0 || mark.layer >= static_cast<int>(looks_.size())) continue;
    if (looks_[static_cast<std::size_t>(mark.layer)].mark == MarkShape::kNone) continue;
    taken_.emplace_back(PlaceOf(mark.at) - reach, PlaceOf(mark.at) + reach);
  }
}

void DrawingPainter::PaintLayer(const DrawingContent& content, int layer) {
  const LayerLook& look = looks_[static_cast<std::size_t>(layer)];
  QPolygonF points;
  for (const DrawnLine& line : content.lines) {
    if (line.layer != layer) continue;
    points.clear();
    for (const DrawingPoint& point : line.points) points << PlaceOf(point);
    PaintLine(look, points);
  }
  for (const DrawnMark& mark : content.marks) {
    if (mark.layer != layer) continue;
    PaintMark(look, PlaceOf(mark.at));
    if (!mark.text.empty()) PaintText(look, mark);
  }
}

void DrawingPainter::PaintLine(const LayerLook& look, const QPolygonF& points) {
  QPen pen(Qt::NoPen);
  if (look.line.isValid()) {
    pen = QPen(look.line, look.width * kThin * line_, look.dashes, Qt::FlatCap, Qt::RoundJoin);
  }
  painter_.setPen(pen);
  if (look.area.isValid()) {
    painter_.setBrush(look.area);
    painter_.drawPolygon(points);
  } else {
    painter_.drawPolyline(points);
  }
}

void DrawingPainter::PaintMark(const LayerLook& look, QPointF at) {
  if (look.mark == MarkShape::kNone) return;
  const double radius = kMarkRadius * line_;
  const bool star = look.mark == MarkShape::kStar;
  const QPainterPath shape = star ? Star(at, radius) : Disc(at, radius);
  painter_.strokePath(shape, QPen(Look::kPaper, kHalo * line_));
  painter_.fillPath(shape, star ? look.ink : Look::kPaper);
  if (star) return;
  painter_.strokePath(shape, QPen(look.ink, 2 * kThin * line_));
  painter_.fillPath(Disc(at, radius / 3), look.ink);
}

void DrawingPainter::PaintText(const LayerLook& look, const DrawnMark& mark) {
  const QFontMetricsF measures(painter_.font());
  const QString text = ToQt(mark.text);
  const QSizeF size(measures.horizontalAdvance(text), measures.height());
  const QRectF place = PlaceOfText(PlaceOf(mark.at), size, look.mark);
  taken_.push_back(place);
  QPainterPath letters;
  letters.addText(place.left(), place.top() + measures.ascent(), painter_.font(), text);
  const QPen halo(Look::kPaper, kTextHalo * line_, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  painter_.strokePath(letters, halo);
  painter_.fillPath(letters, look.ink);
}

// Beside its mark, where it covers nothing else if there is such a place, and never outside.
QRectF DrawingPainter::PlaceOfText(QPointF at, QSizeF size, MarkShape mark) const {
  const auto around = [&](QPointF middle) {
    return QRectF(middle - QPointF(size.width(), size.height()) / 2, size);
  };
  if (mark == MarkShape::kNone) return MovedInside(around(at), place_);
  const double gap = 1.8 * kMarkRadius * line_;
  const double beside = gap + size.width() / 2;
  const double above = gap + size.height() / 2;
  const std::array<QPointF, 4> ways{
      {QPointF(beside, 0), QPointF(-beside, 0), QPointF(0, -above), QPointF(0, above)}};
  for (const QPointF& way : ways) {
    const QRectF place = around(at + way);
    if (place_.contains(place) && IsFree(place)) return place;
  }
  const bool right = at.x() < place_.center().x();
  return MovedInside(around(at + (right ? ways[0] : ways[1])), place_);
}

bool DrawingPainter::IsFree(const QRectF& place) const {
  return std::none_of(taken_.begin(), taken_.end(),
                      [&](const QRectF& taken) { return taken.intersects(place); });
}

QPointF DrawingPainter::PlaceOf(const DrawingPoint& point) const {
  return {place_.x() + point.x * place_.width(), place_.y() + point.y * place_.height()};
}

// An area covers the left part, so that its edge is seen as well.
void DrawingPainter::PaintSample(const LayerLook& look, const QRectF& place) {
  painter_.save();
  PaintGround(place);
  painter_.setClipRect(place);
  const QPointF half(place.width() / 2, 0);
  if (look.mark != MarkShape::kNone) {
    PaintMark(look, place.center());
  } else if (look.area.isValid()) {
    PaintLine(look, place.translated(-half / 2).adjusted(-line_, -line_, 0, line_));
  } else {
    PaintLine(look, QPolygonF({place.center() - half, place.center() + half}));
  }
  painter_.restore();
  PaintEdge(place);
}

}  // namespace tarnwick
