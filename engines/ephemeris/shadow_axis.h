// The shadow that the Moon throws towards the Earth, after Bessel.
//
// The axis of the shadow is the line through the centres of Sun and Moon; the fundamental plane
// runs through the Earth's centre at right angles to it. Heights (zeta) are measured from that
// plane towards the Sun. Two cones have the axis in common. The penumbra's vertex lies between Sun
// and Moon, and it widens all the way down. The umbra narrows towards its vertex on the Earth's
// side of the Moon; beyond that vertex the same cone widens again and is the antumbra, from where
// the Moon is seen to leave a ring of the Sun. A radius of the umbra is negative, as is usual,
// where the eclipse is total, positive in the antumbra.
//
// Source: Explanatory Supplement to the Astronomical Almanac, chapter 8; Meeus, Elements of Solar
// Eclipses. Unit of length: the Earth's equatorial radius. Coordinates as in moon_sun_track.h.
#pragma once

#include "engines/ephemeris/moon_sun_track.h"
#include "engines/ephemeris/spheroid.h"
#include "engines/ephemeris/vector3.h"

namespace tarnwick {

// Radii of the Moon: the mean one for the penumbra; for the umbra that of the deepest valleys of
// the limb, through which the last of the Sun shines.
inline constexpr double kPenumbralMoonRadius = 0.272508;
inline constexpr double kUmbralMoonRadius = 0.272281;

double SunRadius();

// From the Earth's centre to the axis at right angles, and how that vector moves, a day.
MovingVector ShadowAxisFoot(const MoonAndSunVectors& places);

struct Shadow {
  Line axis;  // directed to the Sun
  Cone penumbra;
  Cone antumbra;  // its opposite nappe is the umbra
};

Shadow ShadowOf(const MoonAndSunVectors& places);

// The other nappe of a cone.
constexpr Cone Opposite(const Cone& cone) { return {cone.vertex, -cone.sine}; }

// Radius of a cone at a height: L1 of the penumbra, L2 of the antumbra.
double RadiusAt(const Cone& cone, double zeta);

}  // namespace tarnwick
