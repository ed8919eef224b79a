// Writes every principal phase of the span of the series, and the eclipse at it, as the phase
// engine finds them: a line each, in their order. What Moon and Sun are taken from is a matter of
// linking.
//
// usage: events
//
// Columns: lunation; phase, 0 to 3; its instant; what one more step of the search would add to it;
// then of the eclipse, all 0 where there is none: type, saros, greatest eclipse, gamma, magnitude,
// penumbral magnitude, and the three semi-durations. Instants are JD (TT), the step is in seconds,
// semi-durations in minutes.

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <numbers>
#include <stdexcept>

#include "engines/ephemeris/positions.h"
#include "engines/phase_engine.h"
#include "engines/phases.h"
#include "engines/time_units.h"

namespace tarnwick {
namespace {

constexpr double kFirst = 550000, kLast = 3914990;                      // JD (TT)
constexpr std::int32_t kFirstLunation = -64500, kLastLunation = 49700;  // wide of these

// Seconds from an instant until the Moon has the elongation of the phase.
double SecondsLeft(double ajd_tt, std::int32_t phase) {
  const auto [moon, sun] = PositionsAt(ajd_tt);
  const double elongation = moon.longitude.value - sun.longitude.value;
  const double left = phase * std::numbers::pi / 2 - elongation;
  const double rate = moon.longitude.rate - sun.longitude.rate;
  return std::remainder(left, 2 * std::numbers::pi) / rate * kSecondsPerDay;
}

bool Write(std::int32_t phase, double ajd_tt, const EclipseRecord& eclipse) {
  const int instant =
      std::printf("%d,%d,%.9f,%.6f", eclipse.lunation, phase, ajd_tt, SecondsLeft(ajd_tt, phase));
  if (eclipse.type == kNotEclipsed) return instant > 0 && std::puts(",0,0,0,0,0,0,0,0,0") >= 0;
  return instant > 0 &&
         std::printf(",%d,%d,%.9f,%.7f,%.7f,%.7f,%.5f,%.5f,%.5f\n", eclipse.type, eclipse.saros,
                     eclipse.greatest, eclipse.gamma, eclipse.magnitude,
                     eclipse.penumbral_magnitude, eclipse.penumbral_minutes, eclipse.umbral_minutes,
                     eclipse.total_minutes) > 0;
}

void WriteEvents() {
  bool written = true;
  for (std::int32_t lunation = kFirstLunation; lunation <= kLastLunation; ++lunation) {
    for (std::int32_t phase = 0; phase < kPhaseCount && written; ++phase) {
      EclipseRecord eclipse;
      const double ajd_tt = syzyg(lunation, phase, eclipse);
      if (kFirst <= ajd_tt && ajd_tt <= kLast) written = Write(phase, ajd_tt, eclipse);
    }
  }
  if (!written || std::fflush(stdout) != 0) throw std::runtime_error("cannot write");
}

}  // namespace
}  // namespace tarnwick

int main() {
  try {
    tarnwick::WriteEvents();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "events: %s\n", error.what());
    return 1;
  }
  return 0;
}
