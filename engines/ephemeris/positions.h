// Apparent geocentric positions of the Moon and the Sun.
#pragma once

#include "engines/ephemeris/arguments.h"

namespace tarnwick {

inline constexpr double kKmPerAu = 149597870.7;

// A position in the mean ecliptic and equinox of date, light-time and aberration included, nutation
// not: it cancels wherever only differences of longitude count. Radians, km, and their rates a day.
struct Position {
  MovingAngle longitude;  // value in [0, 2 pi)
  MovingAngle latitude;
  double distance = 0;       // from the Earth's centre, km
  double distance_rate = 0;  // km a day
};

struct MoonAndSun {
  Position moon;
  Position sun;
};

// Positions at an instant (AJD, Terrestrial Time) by the series of this folder. Against JPL DE431
// the elongation is good to 0.4", the Moon's latitude to 0.65" and its distance to 1.1 km, the
// Sun's longitude to 0.16", anywhere from 550000 to 3914990; outside, smooth and finite.
MoonAndSun PositionsAt(double ajd_tt);

// Elongation of the Moon from the Sun in longitude, radians in [0, 2 pi), and its rate a day, by
// the largest terms only: good to 21".
MovingAngle RoughElongationAt(double ajd_tt);

}  // namespace tarnwick
