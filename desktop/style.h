// How every kind of widget is drawn, on top of Qt's Fusion style.
#pragma once

class QRectF;
class QPainter;
class QStyle;
class QColor;

namespace tarnwick {

QStyle* MakeStyle();

// Draws a ring around whatever widget has the focus, outside of it.
void ShowFocusRing();

// A solid triangle in the middle of a place, for what unfolds or leads on.
enum class Pointing { kDown, kLeft, kRight, kUp };
void DrawTriangle(QPainter& painter, const QRectF& place, double size, Pointing pointing,
                  const QColor& color);

}  // namespace tarnwick
