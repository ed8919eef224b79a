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

MovingAngle ElongationAt(double ajd) {
  const MoonAndSun positions = PositionsAt(ajd);
  const MovingAngle& moon = positions.moon.longitude;
  const MovingAngle& sun = positions.sun.longitude;
  return {moon.value - sun.value, moon.rate - sun.rate};
}

// Two steps with the largest terms lead from the mean phase, up to 14 hours away, to within a
// minute; then one with all terms leaves less than a millisecond.
double PhaseInstant(double mean, std::int32_t phase) {
  double ajd = mean;
  for (int i = 0; i < 2; ++i) ajd = Improved(ajd, RoughElongationAt(ajd), phase);
  return Improved(ajd, ElongationAt(ajd), phase);
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

void FindEclipse(std::int32_t lunation, std::int32_t phase, double instant, EclipseRecord& record) {
  const bool solar = phase == kNewMoon;
  const Eclipse eclipse = solar ? SolarEclipseAt(instant) : LunarEclipseAt(instant);
  if (eclipse.type == kNotEclipsed) return;
  FillRecord(eclipse, solar ? SolarSaros(lunation) : LunarSaros(lunation), record);
}

}  // namespace

double syzyg(std::int32_t lunation, std::int32_t phase, EclipseRecord& record) {
  const double mean = MeanElongationInstant(lunation + 1.0 + phase / 4.0);
  const double instant = PhaseInstant(mean, phase);
  record = {};
  record.lunation = lunation;
  if (IsSyzygy(phase) && MayHaveEclipse(mean)) FindEclipse(lunation, phase, instant, record);
  return instant;
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
