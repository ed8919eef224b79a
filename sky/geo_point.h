// Places and lines on maps.
#pragma once

#include <numbers>
#include <vector>

#include "engines/ephemeris/observer.h"

namespace tarnwick {

// A place in degrees: latitude north, in [-90, 90]; longitude east of Greenwich, in [-180, 180].
struct GeoPoint {
  double latitude = 0;
  double longitude = 0;

  friend bool operator==(const GeoPoint&, const GeoPoint&) = default;
};

inline constexpr double kDegree = std::numbers::pi / 180;  // in radians

inline Observer ObserverAt(const GeoPoint& point) {
  return {point.latitude * kDegree, point.longitude * kDegree};
}

// Lines of at least two points each. None crosses the date line: there one ends at longitude 180
// and another begins at -180, or the other way round.
using GeoLines = std::vector<std::vector<GeoPoint>>;

}  // namespace tarnwick
