// Places and sizes of forms, in twips, and of widgets, in device-independent pixels.
#pragma once

#include <QRect>

#include "controls/control.h"

namespace tarnwick {

inline constexpr int kTwipsPerPixel = 15;  // 1440 an inch, and 96 device-independent pixels

inline QRect ToPixels(const Rectangle& bounds) {
  return {bounds.left / kTwipsPerPixel, bounds.top / kTwipsPerPixel, bounds.width / kTwipsPerPixel,
          bounds.height / kTwipsPerPixel};
}

inline Rectangle ToTwips(const QRect& place) {
  return {place.x() * kTwipsPerPixel, place.y() * kTwipsPerPixel, place.width() * kTwipsPerPixel,
          place.height() * kTwipsPerPixel};
}

}  // namespace tarnwick
