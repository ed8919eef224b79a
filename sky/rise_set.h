// Risings, settings and upper transits of the Sun and the Moon at a place.
//
// A body rises and sets when its centre, as seen from the place, is its true semi-diameter and the
// refraction of 34' below the horizon, so that the upper limb seems to touch it (Meeus,
// Astronomical Algorithms, 2nd ed., ch. 15, with the true semi-diameter and parallax of the
// instant). It is in upper transit when its local hour angle is 0, be that above the horizon or
// not.
//
// Against JPL DE431 risings and settings are good to 1" divided by the speed of the altitude over
// the whole range of the series, transits to 0.03 s.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "engines/ephemeris/earth_frame.h"
#include "engines/ephemeris/moon_sun_track.h"
#include "engines/ephemeris/observer.h"
#include "engines/ephemeris/vector3.h"
#include "engines/instant.h"

namespace tarnwick {

enum class Body { kSun, kMoon };
enum class SkyEvent { kRising, kSetting, kTransit };

// The events of a day in the order in which they are told.
struct SkyDayEvent {
  Body body;
  SkyEvent event;
};
inline constexpr std::array<SkyDayEvent, 6> kDayEvents{{{Body::kSun, SkyEvent::kRising},
                                                        {Body::kSun, SkyEvent::kTransit},
                                                        {Body::kSun, SkyEvent::kSetting},
                                                        {Body::kMoon, SkyEvent::kRising},
                                                        {Body::kMoon, SkyEvent::kTransit},
                                                        {Body::kMoon, SkyEvent::kSetting}}};

// The 24 hours after an instant. The series are evaluated three times, whatever is asked then.
class SkyDay {
 public:
  // `delta_t` is Terrestrial less Universal Time, in days.
  SkyDay(UniversalTime start, double delta_t);

  // The instants of an event within the 24 hours, in their order. There is none where the body
  // stays above the horizon or below, and on the day that the Moon's delay passes over.
  std::vector<UniversalTime> Find(Body body, SkyEvent event, const Observer& observer) const;

 private:
  // The Earth-fixed place of a body so many days after the middle: in the frame of EarthFrame, in
  // equatorial radii.
  MovingVector PlaceOf(Body body, double offset) const;

  std::vector<double> Crossings(Body body, bool upwards, const Observer& observer) const;
  std::vector<double> Transits(Body body, const Observer& observer) const;

  UniversalTime middle_;
  MoonSunTrack track_;
  EarthFrame frame_;  // at the middle
  double turning_;    // of the Earth against the equinox of date, radians a day
};

// The next event after an instant, if it happens within 24 hours. Who asks for more of one day
// takes a SkyDay.
std::optional<UniversalTime> NextEvent(Body body, SkyEvent event, const Observer& observer,
                                       UniversalTime start, double delta_t);

}  // namespace tarnwick
