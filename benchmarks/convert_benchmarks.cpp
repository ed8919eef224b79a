// Time of one line of `tarnwick_tables convert`, for dates spread across the range of the program,
// so that no phase of the Moon is stored from the line before.
#include <array>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <random>
#include <string>

#include "calendars/date_processing.h"
#include "engines/date_engine.h"
#include "tools/tables/convert.h"

namespace tarnwick {
namespace {

constexpr std::size_t kCount = 4096;

std::array<std::string, kCount> RandomEntries() {
  std::mt19937 random(18);
  std::uniform_int_distribution<std::int32_t> day_number(552284, 3912514);
  std::array<std::string, kCount> entries;
  for (std::string& entry : entries) {
    entry = DateText(CivilDateOf(day_number(random))) + " CE 15:55";
  }
  return entries;
}

void ConvertOfALine(benchmark::State& state) {
  const std::array<std::string, kCount> entries = RandomEntries();
  std::size_t next = 0;
  for ([[maybe_unused]] auto _ : state) {
    benchmark::DoNotOptimize(ConvertEntry(entries[next++ % kCount], {}));
  }
}
BENCHMARK(ConvertOfALine)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarnwick
