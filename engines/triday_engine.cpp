#include "engines/triday_engine.h"

#include <string>
#include <utility>

#include "engines/date_fields.h"
#include "engines/floor_division.h"

namespace tarnwick {
namespace {

constexpr std::int64_t kEpoch = 2416557;  // the first day of cycle 0
constexpr std::int64_t kLongYears = 47;   // in a cycle
constexpr std::int64_t kCycleTridays = std::int64_t{118} * kLLTCycleYears + kLongYears;
static_assert(3 * kCycleTridays == 136077);

// The tridays before a year, both counted from the epoch and from 0. The quotient grows by 119
// instead of 118 exactly over the long years.
std::int64_t TridaysBeforeYear(std::int64_t year) {
  return FloorDivide(kCycleTridays * year, kLLTCycleYears);
}

// The year that holds a triday: the division turned round, which is exact.
std::int64_t YearOf(std::int64_t triday) {
  return FloorDivide(kLLTCycleYears * (triday + 1) - 1, kCycleTridays);
}

// The tridays of the year before a month.
std::int32_t TridaysBeforeMonth(std::int32_t month) {
  return 10 * (month - 1) - (month > 6 ? 1 : 0);
}

// The month of a triday of the year, counted from 0.
std::int32_t MonthOf(std::int32_t triday) {
  return (triday < TridaysBeforeMonth(7) ? triday : triday + 1) / 10 + 1;
}

std::int32_t TridaysInMonth(std::int32_t year, std::int32_t month) {
  if (month == 6) return kTridaysInMonth6;
  return month == 12 ? num_tridays_in_12th_month(year) : 10;
}

bool IsWithin(std::int32_t number, std::int32_t last) { return number >= 1 && number <= last; }

std::int64_t DayNumber(const LLTDate& record) {
  const std::int64_t year = std::int64_t{record.cycle} * kLLTCycleYears + record.year - 1;
  const std::int64_t triday =
      TridaysBeforeYear(year) + TridaysBeforeMonth(record.month) + record.triday - 1;
  return kEpoch + 3 * triday + record.day - 1;
}

std::int32_t TakeIfValid(LLTDate date, LLTDate& record) {
  if (ltclunar_valid(date) != 1) return 0;
  ltclunar_to_jdn(date);
  record = date;
  return 1;
}

}  // namespace

std::int32_t ltclunar_valid(const LLTDate& record) {
  const bool exists = IsWithin(record.year, kLLTCycleYears) && IsWithin(record.month, 12) &&
                      IsWithin(record.triday, TridaysInMonth(record.year, record.month)) &&
                      IsWithin(record.day, 3);
  return exists && std::in_range<std::int32_t>(DayNumber(record)) ? 1 : 0;
}

void ltclunar_to_jdn(LLTDate& record) {
  if (ltclunar_valid(record) == 1) record.jdn = static_cast<std::int32_t>(DayNumber(record));
}

void jdn_to_ltclunar(LLTDate& record) {
  const std::int64_t days = record.jdn - kEpoch;
  const std::int64_t tridays = FloorDivide(days, 3);
  const std::int64_t year = YearOf(tridays);
  const auto triday = static_cast<std::int32_t>(tridays - TridaysBeforeYear(year));
  record.cycle = static_cast<std::int32_t>(FloorDivide(year, kLLTCycleYears));
  record.year = static_cast<std::int32_t>(FloorModulo(year, kLLTCycleYears) + 1);
  record.month = MonthOf(triday);
  record.triday = triday - TridaysBeforeMonth(record.month) + 1;
  record.day = static_cast<std::int32_t>(FloorModulo(days, 3) + 1);
}

std::int32_t parse_long_lunar_ltc_date(std::string_view text, LLTDate& record) {
  const DateFields fields = ParseDateFields(text, '-');
  if (fields.status != FieldsStatus::kFields || fields.count != 5) return 0;
  const auto& [cycle, year, month, triday, day] = fields.values;
  return TakeIfValid({cycle, year, month, triday, day}, record);
}

std::int32_t parse_short_lunar_ltc_date(std::string_view text, LLTDate& record) {
  return parse_long_lunar_ltc_date(std::string("0-").append(text), record);
}

std::int32_t num_tridays_in_12th_month(std::int32_t year) {
  return FloorModulo(kLongYears * year, kLLTCycleYears) < kLongYears ? 10 : 9;
}

}  // namespace tarnwick
