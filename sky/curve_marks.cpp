#include "sky/curve_marks.h"

#include <algorithm>
#include <cmath>

namespace tarnwick {
namespace {

// All in degrees on the map.
constexpr double kLeastRoom = 5;
constexpr double kLeastBetweenMarks = 75;  // of one curve
constexpr double kFarFromEdge = 10;
constexpr double kLeastLength = 20;  // a number would cover what is shorter

double Distance(const GeoPoint& a, const GeoPoint& b) {
  return std::hypot(a.latitude - b.latitude, a.longitude - b.longitude);
}

double DistanceFrom(const GeoLines& lines, const GeoPoint& point) {
  double least = 360;
  for (const std::vector<GeoPoint>& line : lines) {
    for (const GeoPoint& other : line) least = std::min(least, Distance(point, other));
  }
  return least;
}

bool NearEdge(const GeoPoint& point) {
  return std::abs(point.latitude) > 90 - kFarFromEdge ||
         std::abs(point.longitude) > 180 - kFarFromEdge;
}

// From its first point to the farthest.
bool IsShort(const std::vector<GeoPoint>& line) {
  return std::ranges::all_of(
      line, [&](const GeoPoint& point) { return Distance(line.front(), point) < kLeastLength; });
}

class Marker {
 public:
  Marker(const std::vector<GeoLines>& curves, const GeoLines& others)
      : curves_(curves), others_(others) {}

  void Mark(std::size_t curve) {
    constexpr std::size_t kStep = 5;  // the points lie close together
    double most = kLeastRoom;
    CurveMark best{curve, {}};
    for (const std::vector<GeoPoint>& line : curves_[curve]) {
      if (IsShort(line)) continue;
      for (std::size_t i = 0; i < line.size(); i += kStep) {
        const double room = RoomAt(curve, line[i], most);
        if (room <= most) continue;
        most = room;
        best.at = line[i];
      }
    }
    if (most > kLeastRoom) marks_.push_back(best);
  }

  std::vector<CurveMark> Take() { return std::move(marks_); }

 private:
  // How far the point is from all else; it matters only if that is more than `most`.
  double RoomAt(std::size_t curve, const GeoPoint& point, double most) const {
    if (NearEdge(point)) return 0;
    double room = DistanceFrom(others_, point);
    for (const CurveMark& mark : marks_) {
      const double distance = Distance(mark.at, point);
      if (mark.curve == curve && distance < kLeastBetweenMarks) return 0;
      room = std::min(room, distance);
    }
    for (std::size_t i = 0; i < curves_.size() && room > most; ++i) {
      if (i != curve) room = std::min(room, DistanceFrom(curves_[i], point));
    }
    return room;
  }

  const std::vector<GeoLines>& curves_;
  const GeoLines& others_;
  std::vector<CurveMark> marks_;
};

}  // namespace

std::vector<CurveMark> MarkCurves(const std::vector<GeoLines>& curves, const GeoLines& others) {
  constexpr int kMarksOfACurve = 2;
  Marker marker(curves, others);
  for (int i = 0; i < kMarksOfACurve; ++i) {
    for (std::size_t curve = 0; curve < curves.size(); ++curve) marker.Mark(curve);
  }
  return marker.Take();
}

}  // namespace tarnwick
