// Where the curves of a map have room for their numbers.
#pragma once

#include <cstddef>
#include <vector>

#include "sky/geo_point.h"

namespace tarnwick {

struct CurveMark {
  std::size_t curve = 0;
  GeoPoint at;  // a point of the curve
};

// Marks each curve once or twice, where it is farthest from the others, from what else is on the
// map and from its edges; not at all where it is nowhere far enough or too short.
std::vector<CurveMark> MarkCurves(const std::vector<GeoLines>& curves, const GeoLines& others);

}  // namespace tarnwick
