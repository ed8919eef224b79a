#include "sky/horizon_circle.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "engines/ephemeris/shadow_axis.h"
#include "sky/visibility.h"

namespace tarnwick {
namespace {

constexpr int kPointsPerDegree = 4;

GeoPoint ZenithOf(const Vector3& body) {
  return {std::atan2(body.z, std::hypot(body.x, body.y)) / kDegree,
          std::atan2(body.y, body.x) / kDegree};
}

// Sine of the altitude of a body far away.
double SineOfAltitude(const HorizonCircle& circle, const GeoPoint& point) {
  const double height = circle.zenith.latitude * kDegree;
  const double latitude = point.latitude * kDegree;
  const double turn = (point.longitude - circle.zenith.longitude) * kDegree;
  return std::sin(latitude) * std::sin(height) +
         std::cos(latitude) * std::cos(height) * std::cos(turn);
}

// For a body over the northern half: the northern end of where it is down on a meridian that lies
// so far from it. With the altitude on the meridian as R cos(latitude - highest) it is up while
// that is at least the cosine of the radius.
double SouthernEdgeOfUp(const HorizonCircle& circle, double turn) {
  const double height = circle.zenith.latitude * kDegree;
  const double across = std::cos(height) * std::cos(turn);
  const double along = std::sin(height);
  const double highest = std::atan2(along, across);
  const double limit = std::cos(circle.radius * kDegree);
  const double range = std::hypot(along, across);
  if (range <= limit) return std::numbers::pi / 2;
  return std::clamp(highest - std::acos(limit / range), -std::numbers::pi / 2,
                    std::numbers::pi / 2);
}

}  // namespace

HorizonCircle GeometricHorizon(const Vector3& body) { return {ZenithOf(body), 90}; }

HorizonCircle MoonsVisibleHorizon(const Vector3& moon) {
  const double distance = Length(moon);
  const double from_place = std::sqrt(distance * distance - 1);
  const double semi_diameter = std::asin(kPenumbralMoonRadius / from_place);
  const double altitude = -HeightOfUpperLimb(0, semi_diameter);
  const double sine = (1 + from_place * std::sin(altitude)) / distance;
  return {ZenithOf(moon), std::acos(sine) / kDegree};
}

bool IsUp(const HorizonCircle& circle, const GeoPoint& point) {
  return SineOfAltitude(circle, point) >= std::cos(circle.radius * kDegree);
}

std::vector<GeoPoint> EdgeOf(const HorizonCircle& circle) {
  const double latitude = circle.zenith.latitude * kDegree;
  const double radius = circle.radius * kDegree;
  std::vector<GeoPoint> points;
  constexpr int kCount = 360 * kPointsPerDegree;
  for (int i = 0; i <= kCount; ++i) {
    const double azimuth = i % kCount * kDegree / kPointsPerDegree;
    const double along = std::sin(radius) * std::cos(azimuth);
    const Vector3 point{std::cos(radius) * std::cos(latitude) - along * std::sin(latitude),
                        std::sin(radius) * std::sin(azimuth),
                        std::cos(radius) * std::sin(latitude) + along * std::cos(latitude)};
    const GeoPoint place = ZenithOf(point);
    points.push_back(
        {place.latitude, std::remainder(place.longitude + circle.zenith.longitude, 360)});
  }
  return points;
}

// The body is down from one pole to the edge on every meridian. Since the radius is not above 90
// degrees, that is the pole on whose half the body is not; beyond the other pole, of a body over
// the equator, less than the circle lacks of 90 degrees is left out.
std::vector<GeoPoint> AreaBelow(const HorizonCircle& circle) {
  const double side = circle.zenith.latitude < 0 ? -1 : 1;
  const HorizonCircle northern{{std::abs(circle.zenith.latitude), circle.zenith.longitude},
                               circle.radius};
  std::vector<GeoPoint> area{{-side * 90, 180}, {-side * 90, -180}};
  for (int i = -180 * kPointsPerDegree; i <= 180 * kPointsPerDegree; ++i) {
    const double longitude = static_cast<double>(i) / kPointsPerDegree;
    const double turn = (longitude - circle.zenith.longitude) * kDegree;
    area.push_back({side * SouthernEdgeOfUp(northern, turn) / kDegree, longitude});
  }
  return area;
}

}  // namespace tarnwick
