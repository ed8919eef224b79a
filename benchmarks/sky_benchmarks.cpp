// How long the sky at a place takes: risings, crescents, and what is seen of eclipses.
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <ctime>
#include <initializer_list>
#include <numbers>
#include <vector>

#include "engines/ephemeris/observer.h"
#include "engines/phase_engine.h"
#include "engines/phases.h"
#include "moon/phase_cache.h"
#include "sky/crescent.h"
#include "sky/lunar_at_place.h"
#include "sky/rise_set.h"
#include "sky/seen_eclipses.h"
#include "sky/sky_map.h"
#include "sky/solar_at_place.h"

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

void SolarEclipsesAtPlace(benchmark::State& state) {
  const std::vector<EclipseRecord> eclipses = AllEclipses(kNewMoon);
  const Observer babylon = Babylon();
  std::int64_t seen = 0;
  for ([[maybe_unused]] auto _ : state) {
    for (const EclipseRecord& record : eclipses) {
      const SolarAtPlace eclipse = SolarEclipseAtPlace(CourseOfEclipse(record), babylon);
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
  const Observer babylon = Babylon();
  std::int64_t seen = 0;
  for ([[maybe_unused]] auto _ : state) {
    for (const EclipseRecord& record : eclipses) {
      const LunarAtPlace eclipse = LunarEclipseAtPlace(record, CourseOfEclipse(record), babylon);
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
  const EclipseCourse course = CourseOfEclipse(record);
  double longitude = -std::numbers::pi;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(SolarEclipseAtPlace(course, Observer(0.6, longitude)));
    longitude = longitude < std::numbers::pi ? longitude + 0.01 : -std::numbers::pi;
  }
}
BENCHMARK(SolarEclipseAtManyPlaces);

// From eclipse to eclipse through all 9200 years.
void SeekAllSeenEclipses(benchmark::State& state) {
  const auto sought = static_cast<SoughtEclipse>(state.range(0));
  const Observer babylon = Babylon();
  std::int64_t found = 0;
  for ([[maybe_unused]] auto _ : state) {
    ClearPhaseCache();
    UniversalTime moment(552283);
    while (const auto seen = FindSeenEclipse(sought, babylon, moment, true, [] { return true; })) {
      moment = seen->instant;
      ++found;
    }
  }
  state.counters["found"] =
      benchmark::Counter(static_cast<double>(found), benchmark::Counter::kAvgIterations);
}
BENCHMARK(SeekAllSeenEclipses)->DenseRange(0, 3)->Unit(benchmark::kMillisecond)->Iterations(1);

// Old eclipses, of which the paths by other clocks are drawn as well. Goals: 60 ms, and 8 ms for
// the longest step.
void MapsOfSolarEclipses(benchmark::State& state) {
  SkyMap map({});
  EclipseRecord record;
  std::int32_t lunation = -30000;
  std::clock_t longest = 0;  // of the processor's time
  for ([[maybe_unused]] auto _ : state) {
    do syzyg(lunation++, kNewMoon, record);
    while (record.type == kNotEclipsed);
    map.ShowEclipse(record);
    for (bool more = true; more;) {
      const std::clock_t begin = std::clock();
      more = map.Step();
      longest = std::max(longest, std::clock() - begin);
    }
    benchmark::DoNotOptimize(map.Content());
  }
  state.counters["longest_step_ms"] = 1000.0 * static_cast<double>(longest) / CLOCKS_PER_SEC;
}
BENCHMARK(MapsOfSolarEclipses)->Unit(benchmark::kMillisecond);

void MapsOfLunarEclipses(benchmark::State& state) {
  SkyMap map({});
  EclipseRecord record;
  std::int32_t lunation = 300;
  for ([[maybe_unused]] auto _ : state) {
    do syzyg(lunation++, kFullMoon, record);
    while (record.type == kNotEclipsed);
    map.ShowEclipse(record);
    benchmark::DoNotOptimize(map.Content());
  }
}
BENCHMARK(MapsOfLunarEclipses)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick
