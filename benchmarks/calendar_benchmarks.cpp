// Time of one conversion between day number and date, over day numbers spread across the range of
// the program so that no branch can be foreseen.
#include <array>
#include <benchmark/benchmark.h>
#include <cstdint>
#include <random>

#include "calendars/archetypes.h"
#include "calendars/goddess.h"
#include "calendars/solilunar.h"
#include "calendars/triday.h"
#include "engines/date_engine.h"

namespace tarnwick {
namespace {

constexpr std::size_t kCount = 4096;

template <typename Record>
std::array<Record, kCount> RandomDays(const Record& pattern) {
  std::mt19937 random(18);
  std::uniform_int_distribution<std::int32_t> day_number(552283, 3912515);
  std::array<Record, kCount> records;
  records.fill(pattern);
  for (Record& record : records) record.jdn = day_number(random);
  return records;
}

template <typename Record, typename Convert>
void Run(benchmark::State& state, const std::array<Record, kCount>& records, Convert convert) {
  std::size_t next = 0;
  for (auto _ : state) {
    Record record = records[next++ % kCount];
    convert(record);
    benchmark::DoNotOptimize(record);
  }
}

template <typename Record, typename Convert>
void FromDayNumber(benchmark::State& state, const Record& pattern, Convert to_date) {
  Run(state, RandomDays(pattern), to_date);
}

template <typename Record, typename Convert, typename Back>
void ToDayNumber(benchmark::State& state, const Record& pattern, Convert to_date, Back back) {
  std::array<Record, kCount> records = RandomDays(pattern);
  for (Record& record : records) to_date(record);
  Run(state, records, back);
}

constexpr DateRecord kGregorianDate{0, 0, 0, 'G'};
constexpr DateRecord kJulianDate{0, 0, 0, 'J'};

BENCHMARK_CAPTURE(FromDayNumber, CE, kGregorianDate, jdn_to_euro_date);
BENCHMARK_CAPTURE(ToDayNumber, CE, kGregorianDate, jdn_to_euro_date, euro_date_to_jdn);
BENCHMARK_CAPTURE(FromDayNumber, JC, kJulianDate, jdn_to_euro_date);
BENCHMARK_CAPTURE(ToDayNumber, JC, kJulianDate, jdn_to_euro_date, euro_date_to_jdn);
BENCHMARK_CAPTURE(FromDayNumber, ARC, ARCDate{}, JDNToARCDate);
BENCHMARK_CAPTURE(ToDayNumber, ARC, ARCDate{}, JDNToARCDate, ARCDateToJDN);
BENCHMARK_CAPTURE(FromDayNumber, SD, SDDate{}, JDNToSDDate);
BENCHMARK_CAPTURE(ToDayNumber, SD, SDDate{}, JDNToSDDate, SDDateToJDN);
BENCHMARK_CAPTURE(FromDayNumber, LLT, LLTDate{}, JDNToLLT);
BENCHMARK_CAPTURE(ToDayNumber, LLT, LLTDate{}, JDNToLLT, LLTToJDN);
BENCHMARK_CAPTURE(FromDayNumber, KSG, KSGDate{}, JDNToKSGDate);
BENCHMARK_CAPTURE(ToDayNumber, KSG, KSGDate{}, JDNToKSGDate, KSGDateToJDN);

}  // namespace
}  // namespace tarnwick
