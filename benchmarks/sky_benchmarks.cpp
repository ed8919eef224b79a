// How long the sky at a place takes.
#include <benchmark/benchmark.h>
#include <cstdint>
#include <initializer_list>

#include "sky/crescent.h"
#include "sky/rise_set.h"

namespace tarnwick {
namespace {

constexpr double kFirstDay = 625308;
constexpr double kLastDay = 3693000;
constexpr double kDeltaT = 0.01;
constexpr std::int32_t kFirstLunation = -60000;
constexpr std::int32_t kLastLunation = 40000;

Observer Babylon() { return {0.5679, 0.7753}; }

// Goal: 0.1 ms.
void SixEventsOfADay(benchmark::State& state) {
  const Observer observer = Babylon();
  double day = kFirstDay;
  for ([[maybe_unused]] auto _ : state) {
    const SkyDay sky(UniversalTime(day), kDeltaT);
    for (const Body body : {Body::kSun, Body::kMoon}) {
      for (const SkyEvent event : {SkyEvent::kRising, SkyEvent::kSetting, SkyEvent::kTransit}) {
        benchmark::DoNotOptimize(sky.Find(body, event, observer));
      }
    }
    day = day < kLastDay ? day + 168.7 : kFirstDay;
  }
}
BENCHMARK(SixEventsOfADay);

void NextEventOfTheMoon(benchmark::State& state) {
  const Observer observer = Babylon();
  const auto event = static_cast<SkyEvent>(state.range(0));
  double day = kFirstDay;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(NextEvent(Body::kMoon, event, observer, UniversalTime(day), kDeltaT));
    day = day < kLastDay ? day + 168.7 : kFirstDay;
  }
}
BENCHMARK(NextEventOfTheMoon)->DenseRange(0, 2);

// Three evenings and three mornings. Goal: 0.3 ms.
void CrescentsOfALunation(benchmark::State& state) {
  const Observer observer = Babylon();
  std::int32_t lunation = kFirstLunation;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(EveningsAfter(lunation, observer, kDeltaT));
    benchmark::DoNotOptimize(MorningsBefore(lunation + 1, observer, kDeltaT));
    lunation = lunation < kLastLunation ? lunation + 7 : kFirstLunation;
  }
}
BENCHMARK(CrescentsOfALunation);

}  // namespace
}  // namespace tarnwick
