// Places of Moon and Sun by JPL DE431, from the library and data files of the Swiss Ephemeris.
#pragma once

#include <array>

namespace tarnwick {

enum class De431Body { kMoon, kSun };

// Apparent geocentric longitude and latitude in degrees and distance in au, in the mean ecliptic
// and equinox of date, light-time and aberration included, nutation not, at an instant (AJD,
// Terrestrial Time). Throws std::runtime_error where the data files do not answer with DE431, as
// outside of their span: the library would go on with a theory of its own.
std::array<double, 3> De431Place(De431Body body, double ajd_tt);

}  // namespace tarnwick
