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

namespace tarnwick {

inline constexpr double SynodicMonth = 29.5305888531;  // mean length of a lunation, days
double LunationBase();                                 // new moon of lunation 0

double DeltaTForYear(std::int32_t year);
double DeltaT(double ajd);

// An instant given in Terrestrial Time, in Universal Time.
double UniversalTime(double ajd_tt);

// The instant of a phase in Terrestrial Time, and in Universal Time. FindPhaseEvent has both, and
// the eclipse at it.
double Syzygy(std::int32_t n, std::int16_t phase);
double PhaseTime(std::int32_t n, std::int16_t phase);

// The lunation that contains the moment. It takes no longer far away than near.
std::int32_t LunationOf(double ajd);

// The phase in effect at a moment of a lunation: the last principal phase at or before it.
struct PhaseInEffect {
  std::int16_t phase = 0;  // or one of the codes below
  bool exact = false;      // the moment is the instant of that phase, to 0.00005 days
};
inline constexpr std::int16_t kInLaterLunation = -1;
inline constexpr std::int16_t kInEarlierLunation = -2;

// The phase in effect at a moment of lunation n, or where the moment lies if not in it.
//
// PhaseAt takes the moment in Terrestrial Time. GetPhase takes it in Universal Time and compares it
// with PhaseTime, so that the two agree to the bit even where delta T changes between the instant
// in one scale and in the other.
PhaseInEffect PhaseAt(std::int32_t n, double ajd_tt);
PhaseInEffect GetPhase(std::int32_t n, double ajd);

// "Total lunar eclipse" and so on for the types 1 to 10, else empty.
std::string_view EclipseTypeText(std::int16_t code);

// The Moon's apparent longitude in radians, and its latitude in the second argument, for days from
// 1600-01-01 to 2099-12-31; kBeforePositions or kAfterPositions outside.
double MoonPosition(double ajd, double& latitude);
inline constexpr double kBeforePositions = -99;
inline constexpr double kAfterPositions = -100;

}  // namespace tarnwick
