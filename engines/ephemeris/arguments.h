// The slowly changing quantities that the series of Moon and Sun are built on.
#pragma once

#include <array>
#include <cstddef>
#include <numbers>

namespace tarnwick {

inline constexpr double kRadiansPerArcsecond = std::numbers::pi / 648000;

// The angles that the terms of a series combine: mean elongation, anomalies of Sun and Moon,
// argument of latitude and longitude of the Moon, mean longitudes of the planets.
inline constexpr std::size_t kAngles = 13;
// Mean elongation of the Moon, mean anomalies of Sun and Moon, the Moon's argument of latitude.
enum Angle : std::size_t { kD, kLp, kL, kF, kMoonLongitude };

// An angle in radians, its rate in radians a day.
struct MovingAngle {
  double value = 0;
  double rate = 0;
};

// Everything that the series take from the date.
struct Arguments {
  std::array<MovingAngle, kAngles> angles;  // values in [0, 2 pi)
  MovingAngle sun_longitude;                // mean longitude of the Sun, aberration included
  double eccentricity = 1;                  // of the Earth's orbit, in units of its value at J2000
  double p = 0;                             // P and Q, radians: the tilt of the ecliptic of date
  double q = 0;                             // against the plane that the series use
  double x = 0;                             // centuries from J2000 / 50, for slow amplitudes
};

// The arguments at an instant (AJD, Terrestrial Time). Inside the span of the fit, 550000 to
// 3914990, by the polynomials of arguments.inc; outside it each angle goes on along its tangent at
// the end of the span and everything else keeps its value there, so that all stays finite.
Arguments ArgumentsAt(double ajd_tt);

// The instant (AJD, Terrestrial Time) at which the Moon's mean elongation is `turns` full turns,
// counted from the one that ends with the new moon of January 2000.
double MeanElongationInstant(double turns);

// Mean argument of latitude of the Moon, radians, at an instant as above.
double MeanArgumentOfLatitude(double ajd_tt);

// Julian centuries of Terrestrial Time from J2000, held at the ends of the span of the fit.
double HeldCenturies(double ajd_tt);

}  // namespace tarnwick
