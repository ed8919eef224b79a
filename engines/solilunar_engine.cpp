#include "engines/solilunar_engine.h"

#include <algorithm>
#include <utility>

#include "engines/date_fields.h"
#include "engines/floor_division.h"

namespace tarnwick {
namespace {

constexpr std::int64_t kEraYears = 6840;
constexpr std::int64_t kEraMonths = 84599;
constexpr std::int64_t kEraDays = 2498258;
constexpr std::int64_t kMonthOffset = 5560;  // of the equinox in its month, in 1/6840 of a month
constexpr std::int64_t kEpoch = 1721495;     // the first day of absolute year 1

// Years below are absolute years. Any that cycle and year can make keeps within 64 bits.
std::int64_t AbsoluteYear(const SDDate& record) {
  return std::int64_t{record.cycle} * kSDCycleYears + record.year;
}

// The months between the epoch and the beginning of a year.
std::int64_t MonthsBefore(std::int64_t year) {
  return FloorDivide(kEraMonths * (year - 1) + kMonthOffset, kEraYears);
}

// The mean month that begins the year, rounded to a whole day.
std::int64_t FirstDay(std::int64_t year) {
  return kEpoch + FloorDivide(2 * kEraDays * MonthsBefore(year) + kEraMonths, 2 * kEraMonths);
}

// The year that holds a day. Turning the division of FirstDay round gives the last month that has
// begun, and turning that of MonthsBefore round the last year that begins no later than it; both
// are exact.
std::int64_t YearOf(std::int64_t day_number) {
  const std::int64_t days = day_number - kEpoch;
  const std::int64_t months = FloorDivide(kEraMonths * (2 * days + 1) - 1, 2 * kEraDays);
  return FloorDivide(kEraYears * (months + 1) - kMonthOffset - 1, kEraMonths) + 1;
}

std::int32_t MonthsIn(std::int64_t year) {
  return static_cast<std::int32_t>(MonthsBefore(year + 1) - MonthsBefore(year));
}

// The days of the months before a month.
std::int32_t DaysBeforeMonth(std::int32_t month) { return 29 * (month - 1) + month / 2; }

// The month of a day of the year, counted from 0; what goes beyond the last month belongs to it.
std::int32_t MonthOf(std::int32_t day_of_year, std::int32_t months) {
  const std::int32_t month = day_of_year / 59 * 2 + (day_of_year % 59 < 30 ? 1 : 2);
  return std::min(month, months);
}

std::int32_t MonthLength(std::int64_t year, std::int32_t month, std::int32_t months) {
  if (month < 1 || month > months) return 0;
  if (month < months) return month % 2 == 0 ? 29 : 30;
  const std::int64_t days = FirstDay(year + 1) - FirstDay(year);
  return static_cast<std::int32_t>(days) - DaysBeforeMonth(month);
}

}  // namespace

void sdslcdate_to_jdn(SDDate& record) {
  const std::int64_t year = AbsoluteYear(record);
  record.extra = MonthsIn(year);
  record.valid = 0;
  record.jdn = 0;
  if (record.year < 1 || record.year > kSDCycleYears || record.day < 1) return;
  if (record.day > MonthLength(year, record.month, record.extra)) return;

  const std::int64_t day_number = FirstDay(year) + DaysBeforeMonth(record.month) + record.day - 1;
  if (!std::in_range<std::int32_t>(day_number)) return;
  record.jdn = static_cast<std::int32_t>(day_number);
  record.valid = 1;
}

std::int32_t jdn_to_sdslcdate(SDDate& record) {
  const std::int64_t year = YearOf(record.jdn);
  const auto day_of_year = static_cast<std::int32_t>(record.jdn - FirstDay(year));
  record.extra = MonthsIn(year);
  record.cycle = static_cast<std::int32_t>(FloorDivide(year - 1, kSDCycleYears));
  record.year = static_cast<std::int32_t>(FloorModulo(year - 1, kSDCycleYears) + 1);
  record.month = MonthOf(day_of_year, record.extra);
  record.day = day_of_year - DaysBeforeMonth(record.month) + 1;
  return MonthLength(year, record.month, record.extra);
}

std::int32_t sdslc_datestr_to_sdslc_date(std::string_view text, SDDate& record) {
  const DateFields fields = ParseDateFields(text, '-');
  if (fields.status != FieldsStatus::kFields || fields.count != 4) return 0;
  SDDate date{fields.values[0], fields.values[1], fields.values[2], fields.values[3]};
  sdslcdate_to_jdn(date);
  if (date.valid == 1) record = date;
  return date.valid;
}

std::int32_t is_long_sdslc_year(std::int32_t year, std::int32_t cycle) {
  return MonthsIn(AbsoluteYear({cycle, year})) == 13 ? 1 : 0;
}

std::int32_t sdmonth_length(SDDate& record) {
  const std::int64_t year = AbsoluteYear(record);
  record.extra = MonthsIn(year);
  return MonthLength(year, record.month, record.extra);
}

}  // namespace tarnwick
