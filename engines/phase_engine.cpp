#include "engines/phase_engine.h"

#include <cmath>
#include <numbers>

#include "engines/ephemeris/arguments.h"
#include "engines/ephemeris/delta_t.h"
#include "engines/ephemeris/eclipse.h"
#include "engines/ephemeris/positions.h"
#include "engines/ephemeris/saros.h"
#include "engines/phases.h"
#include "engines/time_units.h"

namespace tarnwick {
namespace {

constexpr double kQuarterTurn = std::numbers::pi / 2;

// |sin F| of the mean argument of latitude at the mean syzygy beyond which no shadow falls.
constexpr double kEclipseLimit = 0.37;

// The elongation less that of the phase, radians in [-pi, pi], as if it were due now.
double Offset(double elongation, std::int32_t phase) {
  return std::remainder(elongation - phase * kQuarterTurn, 2 * std::numbers::pi);
}

// One step of Newton's method from an instant near the phase.
double Improved(double ajd, const MovingAngle& elongation, std::int32_t phase) {
  return ajd - Offset(elongation.value, phase) / elongation.rate;
}

MovingAngle ElongationOf(const MoonAndSun& positions) {
  const MovingAngle& moon = positions.moon.longitude;
  const MovingAngle& sun = positions.sun.longitude;
  return {moon.value - sun.value, moon.rate - sun.rate};
}

// From the mean phase, up to 14 hours away, to within a minute of the true one.
double InstantNearPhase(double mean, std::int32_t phase) {
  double ajd = mean;
  for (int i = 0; i < 2; ++i) ajd = Improved(ajd, RoughElongationAt(ajd), phase);
  return ajd;
}

bool MayHaveEclipse(double mean_syzygy) {
  return std::abs(std::sin(MeanArgumentOfLatitude(mean_syzygy))) <= kEclipseLimit;
}

void FillRecord(const Eclipse& eclipse, std::int32_t saros, EclipseRecord& record) {
  record.saros = saros;
  record.type = eclipse.type;
  record.greatest = eclipse.greatest;
  record.gamma = eclipse.gamma;
  record.magnitude = eclipse.magnitude;
  record.penumbral_magnitude = eclipse.penumbral_magnitude;
  record.penumbral_minutes = eclipse.penumbral_minutes;
  record.umbral_minutes = eclipse.umbral_minutes;
  record.total_minutes = eclipse.total_minutes;
}

void FindEclipse(std::int32_t lunation, std::int32_t phase, double near_syzygy,
                 const MoonAndSun& positions, EclipseRecord& record) {
  const bool solar = phase == kNewMoon;
  const Eclipse eclipse =
      solar ? SolarEclipseNear(near_syzygy, positions) : LunarEclipseNear(near_syzygy, positions);
  if (eclipse.type == kNotEclipsed) return;
  FillRecord(eclipse, solar ? SolarSaros(lunation) : LunarSaros(lunation), record);
}

}  // namespace

double syzyg(std::int32_t lunation, std::int32_t phase, EclipseRecord& record) {
  const double mean = MeanElongationInstant(lunation + 1.0 + phase / 4.0);
  const double near_phase = InstantNearPhase(mean, phase);
  const MoonAndSun positions = PositionsAt(near_phase);
  record = {};
  record.lunation = lunation;
  if (IsSyzygy(phase) && MayHaveEclipse(mean)) {
    FindEclipse(lunation, phase, near_phase, positions, record);
  }
  // With all terms one more step leaves less than a millisecond.
  return Improved(near_phase, ElongationOf(positions), phase);
}

double deltat(double year, std::int32_t /*model*/) {
  return DeltaTSeconds(year + 0.5) / kSecondsPerMinute;
}

double moonpos(double days, double& latitude, double& distance) {
  const Position moon = PositionsAt(kJ2000 + days).moon;
  latitude = moon.latitude.value;
  distance = moon.distance;
  return moon.longitude.value;
}

double sun_app(double ajd, double& distance) {
  const Position sun = PositionsAt(ajd).sun;
  distance = sun.distance / kKmPerAu;
  return sun.longitude.value;
}

}  // namespace tarnwick
