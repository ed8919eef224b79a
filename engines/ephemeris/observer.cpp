#include "engines/ephemeris/observer.h"

#include <cmath>
#include <numbers>

#include "engines/ephemeris/spheroid.h"

namespace tarnwick {

Observer::Observer(double latitude, double longitude) {
  const double sin_latitude = std::sin(latitude);
  const double cos_latitude = std::cos(latitude);
  const double sin_longitude = std::sin(longitude);
  const double cos_longitude = std::cos(longitude);
  up_ = {cos_latitude * cos_longitude, cos_latitude * sin_longitude, sin_latitude};
  east_ = {-sin_longitude, cos_longitude, 0};
  north_ = Cross(up_, east_);
  // The normal from the surface to the polar axis, in equatorial radii.
  const double normal = 1 / std::sqrt(1 - kEccentricitySquared * sin_latitude * sin_latitude);
  position_ = {normal * up_.x, normal * up_.y, normal * (1 - kEccentricitySquared) * up_.z};
}

Horizontal Observer::DirectionOf(const Vector3& vector) const {
  const double east = Dot(vector, east_);
  const double north = Dot(vector, north_);
  const double azimuth = std::atan2(east, north);
  return {std::atan2(Dot(vector, up_), std::hypot(east, north)),
          azimuth < 0 ? azimuth + 2 * std::numbers::pi : azimuth};
}

}  // namespace tarnwick
