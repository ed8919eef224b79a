#include "controls/drawing.h"

namespace tarnwick {

void Drawing::SetContent(DrawingContent content) {
  content_ = std::move(content);
  Notify(Property::kDrawing);
}

void Drawing::ClickAt(DrawingPoint point) const {
  if (on_point) on_point(point);
}

}  // namespace tarnwick
