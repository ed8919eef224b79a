// How long it takes to go from eclipse to eclipse through the whole range of the program.
#include <benchmark/benchmark.h>
#include <cstdint>

#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "navigation/target.h"

namespace tarnwick {
namespace {

constexpr double kFirstMoment = 552283.0;
constexpr double kLastMoment = 3912515.0;

// The next eclipse as the search button finds it: from the greatest phase of the one on display,
// which is not found again.
FoundEclipse NextEclipse(int target, double ajd, const PhaseNumber& displayed) {
  const std::int32_t lunation = LunationOf(ajd);
  const PhaseNumber at{lunation, GetPhase(lunation, ajd).phase};
  return *FindEclipse(
      target, true, at, [&](const FoundEclipse& eclipse) { return eclipse.at != displayed; },
      [] { return true; });
}

// From the lower limit to the upper; `state.range(0)` is the target.
void SearchAllEclipses(benchmark::State& state) {
  std::int64_t count = 0;
  for ([[maybe_unused]] auto _ : state) {
    ClearPhaseCache();
    PhaseNumber displayed{-10000000, 0};
    double ajd = kFirstMoment;
    for (;;) {
      const FoundEclipse found = NextEclipse(static_cast<int>(state.range(0)), ajd, displayed);
      displayed = found.at;
      ajd = found.record.greatest - DeltaT(found.record.greatest) / 1440;
      if (ajd > kLastMoment) break;
      ++count;
    }
  }
  state.counters["eclipses"] =
      benchmark::Counter(static_cast<double>(count), benchmark::Counter::kAvgIterations);
}
BENCHMARK(SearchAllEclipses)
    ->Arg(kSolarEclipseTarget)
    ->Arg(kLunarEclipseTarget)
    ->Unit(benchmark::kSecond)
    ->Iterations(1);

}  // namespace
}  // namespace tarnwick
