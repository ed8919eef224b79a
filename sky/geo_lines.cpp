#include "sky/geo_lines.h"

#include <cmath>
#include <utility>

namespace tarnwick {

void LineMaker::Add(const GeoPoint& point) {
  if (!line_.empty()) CrossDateLine(point);
  line_.push_back(point);
}

void LineMaker::Break() {
  if (line_.size() > 1) lines_.push_back(line_);
  line_.clear();
}

GeoLines LineMaker::Take() {
  Break();
  return std::exchange(lines_, {});
}

void LineMaker::CrossDateLine(const GeoPoint& point) {
  const GeoPoint last = line_.back();
  if (std::abs(point.longitude - last.longitude) <= 180) return;
  const double side = std::copysign(180, last.longitude);
  const double before = side - last.longitude;
  const double after = point.longitude + side;
  const double part = before + after == 0 ? 0 : before / (before + after);
  const double latitude = std::lerp(last.latitude, point.latitude, part);
  line_.push_back({latitude, side});
  Break();
  line_.push_back({latitude, -side});
}

GeoLines MovedEast(const GeoLines& lines, double degrees) {
  LineMaker maker;
  for (const std::vector<GeoPoint>& line : lines) {
    for (const GeoPoint& point : line) {
      maker.Add({point.latitude, std::remainder(point.longitude + degrees, 360)});
    }
    maker.Break();
  }
  return maker.Take();
}

}  // namespace tarnwick
