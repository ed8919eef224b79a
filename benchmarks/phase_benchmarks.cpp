// How long the phase engine takes.
#include <benchmark/benchmark.h>
#include <cmath>
#include <cstdint>
#include <random>
#include <vector>

#include "engines/ephemeris/positions.h"
#include "engines/phase_engine.h"
#include "moon/syzyg.h"

namespace tarnwick {
namespace {

constexpr std::int32_t kFirstLunation = -64316;
constexpr std::int32_t kLastLunation = 49472;

// What the others are compared with, since machines differ and one machine differs from itself: a
// thousand sines of angles that nobody can foresee.
void Yardstick(benchmark::State& state) {
  std::mt19937 random(18);
  std::uniform_real_distribution<double> angle(0, 6.28);
  std::vector<double> angles(1000);
  for (double& a : angles) a = angle(random);
  for ([[maybe_unused]] auto _ : state) {
    double sum = 0;
    for (const double a : angles) sum += std::sin(a);
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(Yardstick);

void MoonAndSunWithRates(benchmark::State& state) {
  double ajd = 552283.0;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(PositionsAt(ajd));
    ajd = ajd < 3900000 ? ajd + 168.7 : 552283.0;
  }
}
BENCHMARK(MoonAndSunWithRates);

// One instant of phase `state.range(0)`; new and full moons include the search for an eclipse.
void UncachedPhase(benchmark::State& state) {
  const auto phase = static_cast<std::int32_t>(state.range(0));
  EclipseRecord record;
  std::int32_t lunation = kFirstLunation;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(syzyg(lunation, phase, record));
    lunation = lunation < kLastLunation - 7 ? lunation + 7 : kFirstLunation;
  }
}
BENCHMARK(UncachedPhase)->DenseRange(0, 3);

void CachedPhase(benchmark::State& state) {
  std::int32_t lunation = 0;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(PhaseTime(lunation, 1));
    lunation = (lunation + 1) % 200;
  }
}
BENCHMARK(CachedPhase);

void AllPhases(benchmark::State& state) {
  std::int64_t count = 0;
  for ([[maybe_unused]] auto _ : state) {
    for (std::int32_t n = kFirstLunation; n <= kLastLunation; ++n) {
      for (std::int16_t phase = 0; phase < 4; ++phase, ++count) {
        benchmark::DoNotOptimize(PhaseTime(n, phase));
      }
    }
  }
  state.counters["phases"] =
      benchmark::Counter(static_cast<double>(count), benchmark::Counter::kAvgIterations);
}
BENCHMARK(AllPhases)->Unit(benchmark::kSecond)->Iterations(1);

void AllEclipses(benchmark::State& state) {
  std::int64_t count = 0;
  EclipseRecord record;
  for ([[maybe_unused]] auto _ : state) {
    for (std::int32_t n = kFirstLunation; n <= kLastLunation; ++n) {
      for (const std::int32_t phase : {0, 2}) {
        syzyg(n, phase, record);
        if (record.type != 0) ++count;
      }
    }
  }
  state.counters["eclipses"] =
      benchmark::Counter(static_cast<double>(count), benchmark::Counter::kAvgIterations);
}
BENCHMARK(AllEclipses)->Unit(benchmark::kSecond)->Iterations(1);

}  // namespace
}  // namespace tarnwick
