// Lunations and the principal phases of the Moon in the program's own time scale.
//
// A lunation runs from its new moon (inclusive) to the next (exclusive); lunation 0 begins with the
// new moon of 2000 January 6 (Meeus, Astronomical Algorithms, 2nd ed., ch. 49). Phases are named by
// the indexes of engines/phases.h. A moment or lunation whose number does not fit 32 bits throws
// RuntimeError.
#pragma once

#include <cstdint>
#include <string_view>

#include "engines/instant.h"
#include "engines/phase_engine.h"

namespace tarnwick {

inline constexpr double SynodicMonth = 29.5305888531;  // mean length of a lunation, days
UniversalTime LunationBase();                          // new moon of lunation 0

// Delta T, Terrestrial less Universal Time, in minutes. It is constant within a Gregorian year:
// that of the instant, as its own scale counts.
double DeltaTForYear(std::int32_t year);
double DeltaT(TerrestrialTime instant);
double DeltaT(UniversalTime instant);
double DeltaTDays(TerrestrialTime instant);  // in days
double DeltaTDays(UniversalTime instant);

UniversalTime ToUniversalTime(TerrestrialTime instant);

// The instant of greatest eclipse.
UniversalTime GreatestEclipse(const EclipseRecord& eclipse);

// A principal phase by lunation and phase index.
struct PhaseNumber {
  std::int32_t lunation = 0;
  std::int16_t phase = 0;
  friend bool operator==(const PhaseNumber&, const PhaseNumber&) = default;
};

// The instant of a phase in Terrestrial Time, and in Universal Time. FindPhaseEvent has both, and
// the eclipse at it.
TerrestrialTime Syzygy(std::int32_t n, std::int16_t phase);
UniversalTime PhaseTime(std::int32_t n, std::int16_t phase);

// The lunation that contains the moment. It takes no longer far away than near.
std::int32_t LunationOf(UniversalTime moment);

// The phase in effect at a moment of a lunation: the last principal phase at or before it.
struct PhaseInEffect {
  std::int16_t phase = 0;  // or one of the codes below
  bool exact = false;      // the moment is the instant of that phase, to 0.00005 days
};
inline constexpr std::int16_t kInLaterLunation = -1;
inline constexpr std::int16_t kInEarlierLunation = -2;

// The phase in effect at a moment of lunation n, or where the moment lies if not in it.
//
// GetPhase compares with PhaseTime, in Universal Time, so that the two agree to the bit even where
// delta T changes between the instant in one scale and in the other.
PhaseInEffect PhaseAt(std::int32_t n, TerrestrialTime moment);
PhaseInEffect GetPhase(std::int32_t n, UniversalTime moment);

// "Dark moon", "1st quarter", "Full moon" or "Last quarter", for the phases 0 to 3.
std::string_view PhaseText(std::int16_t phase);

// "Total lunar eclipse" and so on for the types 1 to 10, else empty.
std::string_view EclipseTypeText(std::int16_t code);

// The Moon's apparent longitude in radians, and its latitude in the second argument, for days from
// 1600-01-01 to 2099-12-31; kBeforePositions or kAfterPositions outside.
double MoonPosition(UniversalTime moment, double& latitude);
inline constexpr double kBeforePositions = -99;
inline constexpr double kAfterPositions = -100;

}  // namespace tarnwick
