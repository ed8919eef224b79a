// How windows keep to the screen: each opens wholly inside it, what finds no room in the window
// scrolls, and the windows beside the main one stay above it.
#pragma once

#include <QRect>

class QWidget;

namespace tarnwick {

// A place moved, and where it must be made smaller, so that it lies inside the room.
QRect Inside(QRect place, const QRect& room);

// The part of its screen that a window can fill without a usual frame lying outside, in
// device-independent pixels.
QRect RoomFor(const QWidget& window);

// To be called when the window's layout holds all of its content. From then on the content
// scrolls where the screen is smaller than what it needs at least, and the window is brought
// inside the screen whenever it is shown, or moved by the program. A window that nothing has
// placed opens over the main one, the main one in the middle of the screen.
void FitToScreen(QWidget& window);

// Makes a window belong to the main one, which lives longer: it stays above it and goes with it.
void BelongTo(QWidget& window, const QWidget& main);

}  // namespace tarnwick
