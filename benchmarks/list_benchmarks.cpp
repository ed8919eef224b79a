// How soon lists have their first rows, and how long whole ones take.
#include <benchmark/benchmark.h>

#include "lists/found_list.h"
#include "moment/accepted_range.h"
#include "moon/phase_cache.h"

namespace tarnwick {
namespace {

ListRequest WholeRange(ListKind kind) {
  return {kind, 0, {kLowerLimit, kUpperLimit}, EventPlace{{32.54, 44.42}, "Babylon"}, 0};
}

// Until the window can show a page of rows.
void FirstRowsOfList(benchmark::State& state, ListKind kind) {
  constexpr std::size_t kPage = 40;
  for ([[maybe_unused]] auto _ : state) {
    ClearPhaseCache();
    const auto list = MakeList(WholeRange(kind));
    while (list->Size() < kPage && list->FindMore()) {
    }
    for (std::size_t row = 0; row < kPage; ++row) {
      for (std::size_t column = 0; column < list->Columns().size(); ++column) {
        benchmark::DoNotOptimize(list->Cell(row, column, {}));
      }
    }
  }
}
BENCHMARK_CAPTURE(FirstRowsOfList, Phases, ListKind::kPhases)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FirstRowsOfList, Eclipses, ListKind::kEclipses)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FirstRowsOfList, SeenEclipses, ListKind::kSeenEclipses)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FirstRowsOfList, Crescents, ListKind::kCrescents)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(FirstRowsOfList, Days, ListKind::kDays)->Unit(benchmark::kMillisecond);

void WholeList(benchmark::State& state, ListKind kind) {
  for ([[maybe_unused]] auto _ : state) {
    ClearPhaseCache();
    const auto list = MakeList(WholeRange(kind));
    while (list->FindMore()) {
    }
    state.counters["rows"] = static_cast<double>(list->Size());
  }
}
BENCHMARK_CAPTURE(WholeList, Eclipses, ListKind::kEclipses)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(WholeList, Coincidences, ListKind::kCoincidences)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick
