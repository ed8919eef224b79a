// The phase engine: principal phases of the Moon with their eclipses, delta T, and the longitudes
// of Moon and Sun. It keeps no state: the same question always has the same answer, to the last
// bit.
#pragma once

#include <cstddef>
#include <cstdint>

#include "engines/eclipse_type.h"

namespace tarnwick {

// The eclipse at a syzygy, as it is stored: 100 bytes, little-endian on every platform we build
// for. Where there is no eclipse all fields but the lunation are 0.
#pragma pack(push, 4)
struct EclipseRecord {
  std::int32_t lunation;
  std::int32_t unused1;
  std::int32_t saros;
  EclipseType type;
  double greatest;             // instant of greatest eclipse, AJD, Terrestrial Time
  double gamma;                // least distance of the shadow's axis, equatorial radii, north +
  double magnitude;            // lunar: umbral, negative for a penumbral eclipse
  double penumbral_magnitude;  // lunar only
  double unused2[2];
  double penumbral_minutes;  // semi-durations of the phases of a lunar eclipse
  double umbral_minutes;
  double total_minutes;
  std::int32_t unused3[3];
};
#pragma pack(pop)
static_assert(sizeof(EclipseRecord) == 100);
static_assert(offsetof(EclipseRecord, lunation) == 0);
static_assert(offsetof(EclipseRecord, saros) == 8);
static_assert(offsetof(EclipseRecord, type) == 12);
static_assert(offsetof(EclipseRecord, greatest) == 16);
static_assert(offsetof(EclipseRecord, penumbral_minutes) == 64);
static_assert(offsetof(EclipseRecord, umbral_minutes) == 72);
static_assert(offsetof(EclipseRecord, total_minutes) == 80);

// The instant (AJD, Terrestrial Time) of a principal phase of a lunation, by its index in phases.h;
// lunation 0 begins with the new moon of 2000 January 6.
// Within half a second of JPL DE431 from -3200 to 6000. Fills the record with the eclipse at that
// syzygy. Any lunation has an answer, far from the span of the series a smooth one. Phases other
// than 0 to 3 count on into the neighbouring lunations: phase 4 is the next new moon.
double syzyg(std::int32_t lunation, std::int32_t phase, EclipseRecord& record);

// Delta T = TT - UT of a whole Gregorian year, in minutes: the value at the middle of the year of
// the model of Stephenson, Morrison and Hohenkerk (2016) with observed values to 2026, joined by a
// cubic from 2027 to 2827 to their long-term parabola. The second argument is the tag of this
// model.
double deltat(double year, std::int32_t model);
inline constexpr std::int32_t kDeltaTModel = 1915;

// Apparent longitude of the Moon, radians in [0, 2 pi), mean equinox of date, `days` after AJD
// 2451545.0. Puts its latitude in radians and its distance in km into the other two.
double moonpos(double days, double& latitude, double& distance);

// Apparent longitude of the Sun, radians in [0, 2 pi), mean equinox of date, at an AJD. Puts its
// distance in au into `distance`.
double sun_app(double ajd, double& distance);

}  // namespace tarnwick
