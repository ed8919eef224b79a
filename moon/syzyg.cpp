#include "moon/syzyg.h"

#include <array>
#include <cmath>

#include "engines/checked_arithmetic.h"
#include "engines/date_engine.h"
#include "engines/eclipse_type.h"
#include "engines/names.h"
#include "engines/phase_engine.h"
#include "engines/phases.h"
#include "engines/time_units.h"
#include "moon/phase_cache.h"

namespace tarnwick {
namespace {

constexpr double kExactness = 0.00005;         // days
constexpr double kFarOff = 2 * SynodicMonth;   // days, more than a lunation can last
constexpr double kFirstPositionDay = 2305448;  // 1600-01-01 CE
constexpr double kLastPositionDay = 2488069;   // 2099-12-31 CE

constexpr std::array<std::string_view, kTotalLunar> kEclipseTypes{
    "Partial solar eclipse",
    "Central annular solar eclipse",
    "Central total solar eclipse",
    "Non-central total solar eclipse",
    "Non-central annular solar eclipse",
    "Central annular-total solar eclipse",
    "Non-central annular-total solar eclipse",
    "Penumbral lunar eclipse",
    "Partial lunar eclipse",
    "Total lunar eclipse",
};

// The phase in effect at a moment by the instants of phases in the moment's scale.
template <class Time>
PhaseInEffect FindPhaseInEffect(std::int32_t n, Time moment,
                                Time (*instant)(std::int32_t n, std::int16_t phase)) {
  if (instant(CheckedAdd(n, 1), kNewMoon) <= moment) return {kInLaterLunation};
  for (std::int16_t phase = kLastQuarter; phase >= kNewMoon; --phase) {
    const Time begin = instant(n, phase);
    if (begin <= moment) return {phase, moment - begin < kExactness};
  }
  return {kInEarlierLunation};
}

// The year at Greenwich of an AJD.
std::int32_t GregorianYear(double ajd) {
  return CivilDateOf(CheckedFloor<std::int32_t>(std::nearbyint(ajd))).year;
}

// How many mean months fit between two moments.
std::int32_t MeanLunations(double days) { return CheckedFloor<std::int32_t>(days / SynodicMonth); }

}  // namespace

UniversalTime LunationBase() {
  static const UniversalTime base = PhaseTime(0, kNewMoon);
  return base;
}

double DeltaTForYear(std::int32_t year) { return deltat(year, kDeltaTModel); }

double DeltaT(TerrestrialTime instant) { return DeltaTForYear(GregorianYear(instant.days)); }
double DeltaT(UniversalTime instant) { return DeltaTForYear(GregorianYear(instant.days)); }

double DeltaTDays(TerrestrialTime instant) { return DeltaT(instant) / kMinutesPerDay; }

double DeltaTDays(UniversalTime instant) { return DeltaT(instant) / kMinutesPerDay; }

UniversalTime ToUniversalTime(TerrestrialTime instant) {
  return UniversalTime(instant.days - DeltaTDays(instant));
}

UniversalTime GreatestEclipse(const EclipseRecord& eclipse) {
  return ToUniversalTime(TerrestrialTime(eclipse.greatest));
}

TerrestrialTime Syzygy(std::int32_t n, std::int16_t phase) { return FindPhaseEvent(n, phase).tt; }

UniversalTime PhaseTime(std::int32_t n, std::int16_t phase) { return FindPhaseEvent(n, phase).ut; }

// Mean months lead to the lunation or one beside it; but far away months are no longer what they
// are near lunation 0, so that the next estimate starts from where the one before has led.
std::int32_t LunationOf(UniversalTime moment) {
  std::int32_t n = MeanLunations(moment - LunationBase());
  for (;;) {
    const double age = moment - PhaseTime(n, kNewMoon);
    if (std::abs(age) > kFarOff) {
      n = CheckedAdd(n, MeanLunations(age));
    } else if (age < 0) {
      n = CheckedSubtract(n, 1);
    } else if (moment >= PhaseTime(CheckedAdd(n, 1), kNewMoon)) {
      n = CheckedAdd(n, 1);
    } else {
      return n;
    }
  }
}

PhaseInEffect PhaseAt(std::int32_t n, TerrestrialTime moment) {
  return FindPhaseInEffect(n, moment, Syzygy);
}

PhaseInEffect GetPhase(std::int32_t n, UniversalTime moment) {
  return FindPhaseInEffect(n, moment, PhaseTime);
}

std::string_view PhaseText(std::int16_t phase) {
  constexpr std::array<std::string_view, kPhaseCount> kPhases{"Dark moon", "1st quarter",
                                                              "Full moon", "Last quarter"};
  return NameOf(kPhases, phase, kNewMoon);
}

std::string_view EclipseTypeText(std::int16_t code) {
  return NameOf(kEclipseTypes, code, kPartialSolar);
}

double MoonPosition(UniversalTime moment, double& latitude) {
  const double day = std::floor(moment.days + 0.5);
  if (day < kFirstPositionDay) return kBeforePositions;
  if (day > kLastPositionDay) return kAfterPositions;
  double distance = 0;
  return moonpos(moment.days - kJ2000, latitude, distance);
}

}  // namespace tarnwick
