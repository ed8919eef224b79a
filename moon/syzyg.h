// Lunations and the principal phases of the Moon in the program's own time scale.
//
// A lunation runs from its new moon (inclusive) to the next (exclusive); lunation 0 begins with the
// new moon of 2000 January 6 (Meeus, Astronomical Algorithms, 2nd ed., ch. 49). Phases: 0 new moon,
// 1 first quarter, 2 full moon, 3 last quarter. Moments are AJD in Universal Time unless a name
// says TT (Terrestrial Time); delta T = TT - UT is in minutes and constant within a Gregorian year.
// A moment or lunation whose number does not fit 32 bits throws RuntimeError.
#pragma once

#include <cstdint>
#include <string_view>

#include "engines/phase_engine.h"

namespace tarnwick {

inline constexpr double SynodicMonth = 29.5305888531;  // mean length of a lunation, days
extern double LunationBase;                            // new moon of lunation 0
extern EclipseRecord EclipseData;  // of the syzygy that was asked for last, by whomever

// Fills LunationBase; called once before any other routine here.
void InitLunations();

double DeltaTForYear(std::int32_t year);
double DeltaT(double ajd);

// An instant given in Terrestrial Time, in Universal Time.
double UniversalTime(double ajd_tt);

// The instant of a phase in Terrestrial Time, and in Universal Time. Both fill the record with the
// eclipse at it.
double Syzygy(std::int32_t n, std::int16_t phase, EclipseRecord& record = EclipseData);
double PhaseTime(std::int32_t n, std::int16_t phase, EclipseRecord& record = EclipseData);

// The lunation that contains the moment.
std::int32_t LunationOf(double ajd);

// The phase in effect at a moment of lunation n, the last principal phase at or before it; `exact`
// tells whether the moment is the instant of that phase, to 0.00005 days. -1 when the moment lies
// in a later lunation, -2 when in an earlier one.
//
// PhaseAt takes the moment in Terrestrial Time. GetPhase takes it in Universal Time and compares it
// with PhaseTime, so that the two agree to the bit even where delta T changes between the instant
// in one scale and in the other.
std::int16_t PhaseAt(std::int32_t n, double ajd_tt, bool& exact);
std::int16_t GetPhase(std::int32_t n, double ajd, bool& exact);

// "Total lunar eclipse" and so on for the types 1 to 10, else empty.
std::string_view EclipseTypeText(std::int16_t code);

// The Moon's apparent longitude in radians, and its latitude in the second argument, for days from
// 1600-01-01 to 2099-12-31; kBeforePositions or kAfterPositions outside.
double MoonPosition(double ajd, double& latitude);
inline constexpr double kBeforePositions = -99;
inline constexpr double kAfterPositions = -100;

}  // namespace tarnwick
