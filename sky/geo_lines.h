// Lines on an equirectangular map, put together point by point.
#pragma once

#include <vector>

#include "sky/geo_point.h"

namespace tarnwick {

// Makes lines of points in their order. Two points that are more than half the way round apart in
// longitude have the date line between them.
class LineMaker {
 public:
  void Add(const GeoPoint& point);
  // The next point begins another line. A line of a single point is none.
  void Break();
  // The lines so far; then it begins anew.
  GeoLines Take();

 private:
  void CrossDateLine(const GeoPoint& point);

  GeoLines lines_;
  std::vector<GeoPoint> line_;
};

// The same lines so many degrees further east.
GeoLines MovedEast(const GeoLines& lines, double degrees);

}  // namespace tarnwick
