// What the geometry of a syzygy says about an eclipse.
#pragma once

#include "engines/eclipse_type.h"
#include "engines/ephemeris/moon_sun_track.h"
#include "engines/ephemeris/positions.h"

namespace tarnwick {

struct Eclipse {
  EclipseType type = kNotEclipsed;
  double greatest = 0;             // instant of greatest eclipse, AJD, Terrestrial Time
  double gamma = 0;                // least distance of the axis, equatorial Earth radii, north +
  double magnitude = 0;            // lunar: umbral, negative for a penumbral eclipse
  double penumbral_magnitude = 0;  // lunar only
  double penumbral_minutes = 0;    // semi-durations of a lunar eclipse; 0 where there is no such
  double umbral_minutes = 0;       // phase
  double total_minutes = 0;
};

// The eclipse at a new or full moon, of which an instant within minutes of it (AJD, Terrestrial
// Time) and the positions at that instant are given. Type kNotEclipsed, and all else 0, where there
// is none.
Eclipse SolarEclipseNear(double new_moon, const MoonAndSun& positions);
Eclipse LunarEclipseNear(double full_moon, const MoonAndSun& positions);

// How much of the Moon's diameter lies in the umbra and in the penumbra, by the geocentric places
// at an instant; negative while the Moon is outside.
struct LunarMagnitudes {
  double umbral = 0;
  double penumbral = 0;
};
LunarMagnitudes LunarMagnitudesOf(const MoonAndSunVectors& places);

}  // namespace tarnwick
