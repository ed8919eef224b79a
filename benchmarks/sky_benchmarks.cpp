// How long it takes to tell what a place sees of eclipses.
#include <benchmark/benchmark.h>
#include <cstdint>
#include <numbers>
#include <vector>

#include "engines/ephemeris/observer.h"
#include "engines/phase_engine.h"
#include "engines/phases.h"
#include "engines/time_units.h"
#include "moon/syzyg.h"
#include "sky/lunar_at_place.h"
#include "sky/solar_at_place.h"

namespace tarnwick {
namespace {

constexpr double kDegree = std::numbers::pi / 180;

// Those of 9200 years.
std::vector<EclipseRecord> AllEclipses(std::int32_t phase) {
  std::vector<EclipseRecord> eclipses;
  for (std::int32_t n = -64316; n <= 49472; ++n) {
    EclipseRecord record;
    syzyg(n, phase, record);
    if (record.type != kNotEclipsed) eclipses.push_back(record);
  }
  return eclipses;
}

EclipseCourse CourseOf(const EclipseRecord& record) {
  const TerrestrialTime greatest(record.greatest);
  return {greatest, DeltaT(greatest) / kMinutesPerDay};
}

void SolarEclipsesAtPlace(benchmark::State& state) {
  const std::vector<EclipseRecord> eclipses = AllEclipses(kNewMoon);
  const Observer babylon(32.54 * kDegree, 44.42 * kDegree);
  std::int64_t seen = 0;
  for ([[maybe_unused]] auto _ : state) {
    for (const EclipseRecord& record : eclipses) {
      const SolarAtPlace eclipse = SolarEclipseAtPlace(CourseOf(record), babylon);
      if (eclipse.kind_seen != SolarKind::kNone) ++seen;
    }
  }
  state.counters["eclipses"] = static_cast<double>(eclipses.size());
  state.counters["seen"] =
      benchmark::Counter(static_cast<double>(seen), benchmark::Counter::kAvgIterations);
}
BENCHMARK(SolarEclipsesAtPlace)->Unit(benchmark::kMillisecond);

void LunarEclipsesAtPlace(benchmark::State& state) {
  const std::vector<EclipseRecord> eclipses = AllEclipses(kFullMoon);
  const Observer babylon(32.54 * kDegree, 44.42 * kDegree);
  std::int64_t seen = 0;
  for ([[maybe_unused]] auto _ : state) {
    for (const EclipseRecord& record : eclipses) {
      const LunarAtPlace eclipse = LunarEclipseAtPlace(record, CourseOf(record), babylon);
      if (eclipse.type_seen != kNotEclipsed) ++seen;
    }
  }
  state.counters["eclipses"] = static_cast<double>(eclipses.size());
  state.counters["seen"] =
      benchmark::Counter(static_cast<double>(seen), benchmark::Counter::kAvgIterations);
}
BENCHMARK(LunarEclipsesAtPlace)->Unit(benchmark::kMillisecond);

// One eclipse from many places, as for a map.
void SolarEclipseAtManyPlaces(benchmark::State& state) {
  EclipseRecord record;
  syzyg(300, kNewMoon, record);
  const EclipseCourse course = CourseOf(record);
  double longitude = -std::numbers::pi;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(SolarEclipseAtPlace(course, Observer(0.6, longitude)));
    longitude = longitude < std::numbers::pi ? longitude + 0.01 : -std::numbers::pi;
  }
}
BENCHMARK(SolarEclipseAtManyPlaces);

}  // namespace
}  // namespace tarnwick
