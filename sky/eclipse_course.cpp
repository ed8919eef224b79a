#include "sky/eclipse_course.h"

#include <cmath>
#include <numbers>

#include "engines/ephemeris/positions.h"
#include "engines/ephemeris/shadow_axis.h"
#include "engines/time_units.h"
#include "moon/syzyg.h"
#include "sky/visibility.h"

namespace tarnwick {
namespace {

// How fast the Earth turns against the equinox, radians a day: the rotation of the sidereal time of
// earth_frame.h and its precession. Within five hours all that this leaves out, the drift of
// nutation and of the equator, comes to 0.03"; to find the frame anew at each instant would cost
// more than all else that is done there.
constexpr double kSiderealRate = 2 * std::numbers::pi * 1.00273790935;

}  // namespace

EclipseCourse::EclipseCourse(TerrestrialTime greatest, double delta_t)
    : greatest_(greatest),
      delta_t_(delta_t),
      track_(greatest.days, VectorsOf(PositionsAt(greatest.days))),
      frame_(greatest.days, delta_t) {}

EclipseCourse CourseOfEclipse(const EclipseRecord& record, double larger_by) {
  const TerrestrialTime greatest(record.greatest);
  return {greatest, DeltaTDays(greatest) + larger_by / kSecondsPerDay};
}

EclipseFromPlace::EclipseFromPlace(const EclipseCourse& course, const Observer& observer)
    : course_(course), observer_(observer) {
  const Vector3& place = observer.Position();
  along_ = course.Frame().ToEcliptic({0, 0, place.z});
  across_ = course.Frame().ToEcliptic({place.x, place.y, 0});
  quarter_later_ = course.Frame().ToEcliptic({-place.y, place.x, 0});
}

MoonAndSunVectors EclipseFromPlace::At(double offset) const {
  const double turn = kSiderealRate * offset;
  const double sin_turn = std::sin(turn);
  const double cos_turn = std::cos(turn);
  const MovingVector place{along_ + cos_turn * across_ + sin_turn * quarter_later_,
                           kSiderealRate * (cos_turn * quarter_later_ - sin_turn * across_)};
  const MoonAndSunVectors geocentric = course_.At(offset);
  return {geocentric.moon - place, geocentric.sun - place};
}

BodyAtInstant EclipseFromPlace::SunAt(double offset) const {
  return BodyAt(At(offset).sun.value, SunRadius(), offset);
}

BodyAtInstant EclipseFromPlace::MoonAt(double offset) const {
  return BodyAt(At(offset).moon.value, kPenumbralMoonRadius, offset);
}

BodyAtInstant EclipseFromPlace::BodyAt(const Vector3& from_place, double radius,
                                       double offset) const {
  const Horizontal direction = DirectionOf(from_place, offset);
  const double semi_diameter = std::asin(radius / Length(from_place));
  return {course_.InstantAt(offset), direction,
          HeightOfUpperLimb(direction.altitude, semi_diameter)};
}

Horizontal EclipseFromPlace::DirectionOf(const Vector3& vector, double offset) const {
  const double turn = kSiderealRate * offset;
  const double sin_turn = std::sin(turn);
  const double cos_turn = std::cos(turn);
  const Vector3 a = course_.Frame().FromEcliptic(vector);
  return observer_.DirectionOf(
      {cos_turn * a.x + sin_turn * a.y, cos_turn * a.y - sin_turn * a.x, a.z});
}

}  // namespace tarnwick
