// A drawing of lines, areas and marks that stays sharp at any size.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "controls/control.h"

namespace tarnwick {

// A place in a drawing, in fractions of its width and height from the upper left corner.
struct DrawingPoint {
  double x = 0;
  double y = 0;
};

// What is drawn belongs to a layer. Its number says what it is, which decides how it looks; lower
// ones lie below.
struct DrawnLine {
  int layer = 0;
  std::vector<DrawingPoint> points;  // an area is closed from the last to the first
};

struct DrawnMark {
  int layer = 0;
  DrawingPoint at;
  std::string text;  // stands beside it; empty for none
};

// What a layer means, told below the drawing.
struct LegendEntry {
  int layer = 0;
  std::string text;
};

struct DrawingContent {
  std::vector<DrawnLine> lines;
  std::vector<DrawnMark> marks;
  std::vector<LegendEntry> legend;
};

class Drawing : public Control {
 public:
  using Control::Control;

  const DrawingContent& Content() const { return content_; }
  void SetContent(DrawingContent content);

  // What it shows, in words.
  const std::string& Description() const { return description_; }
  void SetDescription(std::string description) {
    Assign(description_, std::move(description), Property::kDescription);
  }

  // The user clicks into it, at a point of it.
  void ClickAt(DrawingPoint point) const;
  std::function<void(DrawingPoint point)> on_point;

 private:
  DrawingContent content_;
  std::string description_;
};

}  // namespace tarnwick
