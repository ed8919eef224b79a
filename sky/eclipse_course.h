// Moon and Sun through the hours of an eclipse, and as one place sees them.
//
// Offsets are days from greatest eclipse for the whole Earth, within MoonSunTrack::kReach either
// way. Vectors are in equatorial radii and in the mean ecliptic and equinox of date, as the series
// give them: turning one place among the stars is cheaper than turning Moon and Sun.
#pragma once

#include <string_view>

#include "engines/ephemeris/earth_frame.h"
#include "engines/ephemeris/moon_sun_track.h"
#include "engines/ephemeris/observer.h"
#include "engines/instant.h"
#include "engines/phase_engine.h"

namespace tarnwick {

// What an eclipse has in common for all places. Making it takes three evaluations of the series,
// looking at it none.
class EclipseCourse {
 public:
  // By the instant of greatest eclipse and delta T, Terrestrial less Universal Time in days, which
  // is taken as constant.
  EclipseCourse(TerrestrialTime greatest, double delta_t);

  UniversalTime InstantAt(double offset) const {
    return UniversalTime(greatest_.days - delta_t_ + offset);
  }
  // Seen from the Earth's centre.
  MoonAndSunVectors At(double offset) const { return track_.At(offset); }
  // How the Earth stands at offset 0.
  const EarthFrame& Frame() const { return frame_; }

 private:
  TerrestrialTime greatest_;
  double delta_t_;
  MoonSunTrack track_;
  EarthFrame frame_;
};

// The course of the eclipse of that record by the delta T of its year, or one that is so many
// seconds larger.
EclipseCourse CourseOfEclipse(const EclipseRecord& record, double larger_by = 0);

// The kind of an eclipse for a place that sees nothing of it.
inline constexpr std::string_view kNotSeen = "none";

// Sun or Moon from a place at an instant.
struct BodyAtInstant {
  UniversalTime instant;
  Horizontal direction;   // of the centre
  double upper_limb = 0;  // height above the horizon that is seen, refraction included, radians

  bool Visible() const { return upper_limb > 0; }
};

// An eclipse from a place, which turns with the Earth. Refers to the course and the observer.
class EclipseFromPlace {
 public:
  EclipseFromPlace(const EclipseCourse& course, const Observer& observer);

  // From the place to Moon and Sun.
  MoonAndSunVectors At(double offset) const;
  BodyAtInstant SunAt(double offset) const;
  BodyAtInstant MoonAt(double offset) const;

 private:
  BodyAtInstant BodyAt(const Vector3& from_place, double radius, double offset) const;
  Horizontal DirectionOf(const Vector3& vector, double offset) const;

  const EclipseCourse& course_;
  const Observer& observer_;
  // The place at offset 0, along the Earth's axis and across, and a quarter of a turn later.
  Vector3 along_;
  Vector3 across_;
  Vector3 quarter_later_;
};

}  // namespace tarnwick
