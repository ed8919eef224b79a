#include "moon/syzyg.h"

#include <array>
#include <cmath>

#include "engines/checked_arithmetic.h"
#include "engines/date_engine.h"
#include "engines/names.h"
#include "engines/phases.h"
#include "engines/time_units.h"
#include "moon/phase_cache.h"

namespace tarnwick {
namespace {

constexpr double kExactness = 0.00005;         // days
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

using PhaseInstant = double (*)(std::int32_t n, std::int16_t phase, EclipseRecord& record);

// The phase in effect at t, both instants and t in one time scale.
std::int16_t PhaseInEffect(std::int32_t n, double t, bool& exact, PhaseInstant instant) {
  exact = false;
  if (instant(CheckedAdd(n, 1), kNewMoon, EclipseData) <= t) return -1;
  for (std::int16_t phase = kLastQuarter; phase >= kNewMoon; --phase) {
    const double begin = instant(n, phase, EclipseData);
    if (begin > t) continue;
    exact = t - begin < kExactness;
    return phase;
  }
  return -2;
}

}  // namespace

double LunationBase = 0;
EclipseRecord EclipseData{};

void InitLunations() { LunationBase = PhaseTime(0, kNewMoon); }

double DeltaTForYear(std::int32_t year) { return deltat(year, kDeltaTModel); }

double DeltaT(double ajd) {
  return DeltaTForYear(CivilDateOf(CheckedFloor<std::int32_t>(std::nearbyint(ajd))).year);
}

double UniversalTime(double ajd_tt) { return ajd_tt - DeltaT(ajd_tt) / kMinutesPerDay; }

double Syzygy(std::int32_t n, std::int16_t phase, EclipseRecord& record) {
  const PhaseEvent& event = FindPhaseEvent(n, phase);
  record = event.eclipse;
  return event.tt;
}

double PhaseTime(std::int32_t n, std::int16_t phase, EclipseRecord& record) {
  const PhaseEvent& event = FindPhaseEvent(n, phase);
  record = event.eclipse;
  return event.ut;
}

std::int32_t LunationOf(double ajd) {
  auto n = CheckedFloor<std::int32_t>((ajd - LunationBase) / SynodicMonth);
  for (;;) {
    if (PhaseTime(n, kNewMoon) > ajd) {
      n = CheckedSubtract(n, 1);
    } else if (ajd >= PhaseTime(CheckedAdd(n, 1), kNewMoon)) {
      n = CheckedAdd(n, 1);
    } else {
      return n;
    }
  }
}

std::int16_t PhaseAt(std::int32_t n, double ajd_tt, bool& exact) {
  return PhaseInEffect(n, ajd_tt, exact, Syzygy);
}

std::int16_t GetPhase(std::int32_t n, double ajd, bool& exact) {
  return PhaseInEffect(n, ajd, exact, PhaseTime);
}

std::string_view EclipseTypeText(std::int16_t code) {
  return NameOf(kEclipseTypes, code, kPartialSolar);
}

double MoonPosition(double ajd, double& latitude) {
  const double day = std::floor(ajd + 0.5);
  if (day < kFirstPositionDay) return kBeforePositions;
  if (day > kLastPositionDay) return kAfterPositions;
  double distance = 0;
  return moonpos(ajd - kJ2000, latitude, distance);
}

}  // namespace tarnwick
