// How long it takes to go from eclipse to eclipse through the whole range of the program.
#include <benchmark/benchmark.h>
#include <cstdint>

#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "navigation/target.h"

namespace tarnwick {
namespace {

constexpr UniversalTime kFirstMoment(552283.0);
constexpr UniversalTime kLastMoment(3912515.0);

// The next eclipse as the search button finds it: from the greatest phase of the one on display,
// which is not found again.
FoundEclipse NextEclipse(int target, UniversalTime moment, const PhaseNumber& displayed) {
  const std::int32_t lunation = LunationOf(moment);
  const PhaseNumber at{lunation, GetPhase(lunation, moment).phase};
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
    UniversalTime moment = kFirstMoment;
    for (;;) {
      const FoundEclipse found = NextEclipse(static_cast<int>(state.range(0)), moment, displayed);
      displayed = found.at;
      moment = GreatestEclipse(found.record);
      if (moment > kLastMoment) break;
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
