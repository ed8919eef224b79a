#include "calendars/goddess.h"

#include <array>
#include <cstddef>
#include <utility>

#include "calendars/cycle_year.h"
#include "calendars/date_processing.h"
#include "calendars/text.h"
#include "engines/checked_arithmetic.h"
#include "engines/date_fields.h"
#include "engines/floor_division.h"
#include "engines/names.h"

namespace tarnwick {
namespace {

constexpr std::int32_t kEpoch = 2415611;  // the first day of cycle 1
constexpr std::int32_t kCycleDays = 180432;

constexpr std::array<std::string_view, 13> kMonthNames{
    "Athena", "Brigid", "Cerridwen", "Diana", "Epona",  "Freya", "Gaea",
    "Hathor", "Inanna", "Juno",      "Kore",  "Lilith", "Maria"};

// The days of the first n years of a cycle; the last of them is divisible by 10 and by 235.
constexpr std::int32_t DaysOfYears(std::int32_t n) {
  return 384 * n - n / 10 - n / 235 + n / kKSGCycleYears;
}
static_assert(DaysOfYears(kKSGCycleYears) == kCycleDays);

// The number of whole years that end within the first `days` days of a cycle. All short years
// together lack less than one year, so taking every year as long misses it by one at most.
std::int32_t YearsWithin(std::int32_t days) {
  const std::int32_t n = days / 384;
  return DaysOfYears(n + 1) <= days ? n + 1 : n;
}

// The days of the months before a month.
std::int32_t DaysBeforeMonth(std::int32_t month) { return 29 * (month - 1) + month / 2; }

bool DateExists(const KSGDate& record) {
  return record.year >= 1 && record.year <= kKSGCycleYears && record.month >= 1 &&
         record.month <= 13 && record.day >= 1 &&
         record.day <= KSGMonthLength(record.year, record.month);
}

void MoveYear(KSGDate& record, bool forward) {
  StepYearOfCycle(record.cycle, record.year, kKSGCycleYears, forward);
}

void MoveMonth(KSGDate& record, bool forward) {
  const std::int16_t month = CheckedAdd(record.month, forward ? 1 : -1);
  if (forward ? month > 13 : month < 1) {
    MoveYear(record, forward);
    record.month = forward ? 1 : 13;
  } else {
    record.month = month;
  }
}

std::string Words(std::string_view name, std::int32_t number) {
  return std::string(name).append(SignedNumberText(number));
}

std::string NumericText(const KSGDate& record, bool with_abbreviation) {
  return NumericDate({{record.cycle}, {record.year}, {record.month, 2}, {record.day, 2}},
                     with_abbreviation ? " KSG" : "");
}

// "Monday, Maria 11, 1-105"
std::string WeekdayText(KSGDate record) {
  KSGDateToJDN(record);
  return WeekdayName(euro_day_of_week(record.jdn)) + ", " +
         Words(KSGMonthName(record.month), record.day) + ", " + std::to_string(record.cycle) + "-" +
         std::to_string(record.year);
}

}  // namespace

bool IsShortKSGYear(std::int32_t year) { return year % 10 == 0 || year % 235 == 0; }

std::int16_t KSGYearLength(std::int32_t year) { return IsShortKSGYear(year) ? 383 : 384; }

std::int16_t KSGMonthLength(std::int32_t year, std::int32_t month) {
  if (month >= 13) return IsShortKSGYear(year) ? 29 : 30;
  return month % 2 == 0 ? 29 : 30;
}

bool KSGDateToJDN(KSGDate& record) {
  if (!DateExists(record)) {
    record.jdn = 0;
    record.valid = 0;
    return false;
  }
  const std::int64_t days = (std::int64_t{record.cycle} - 1) * kCycleDays +
                            DaysOfYears(record.year - 1) + DaysBeforeMonth(record.month) +
                            record.day - 1;
  record.jdn = CheckedNarrow<std::int32_t>(kEpoch + days);
  record.valid = 1;
  return true;
}

void JDNToKSGDate(KSGDate& record) {
  const std::int64_t days = std::int64_t{record.jdn} - kEpoch;
  auto rest = static_cast<std::int32_t>(FloorModulo(days, kCycleDays));
  const std::int32_t years = YearsWithin(rest);
  rest -= DaysOfYears(years);

  std::int32_t month = 1;
  while (month < 13 && rest >= DaysBeforeMonth(month + 1)) ++month;
  record.cycle = static_cast<std::int32_t>(FloorDivide(days, kCycleDays) + 1);
  record.year = static_cast<std::int16_t>(years + 1);
  record.month = static_cast<std::int16_t>(month);
  record.day = static_cast<std::int16_t>(rest - DaysBeforeMonth(month) + 1);
}

void StepKSGCycle(KSGDate& record, bool forward) {
  record.cycle = CheckedAdd(record.cycle, forward ? 1 : -1);
}

void StepKSGYear(KSGDate& record, bool forward) {
  MoveYear(record, forward);
  if (record.month == 13 && record.day == 30 && IsShortKSGYear(record.year)) record.day = 29;
}

void StepKSGMonth(KSGDate& record, bool forward) {
  MoveMonth(record, forward);
  if (record.day == 30) record.day = KSGMonthLength(record.year, record.month);
}

std::string_view KSGMonthName(std::int32_t month) { return NameOf(kMonthNames, month); }

bool ParseKSGDate(std::string_view text, KSGDate& record) {
  const DateFields fields = ParseDateFields(text, '-');
  const bool with_cycle = fields.count == 4;
  const bool without_cycle = fields.count == 3 && !fields.has_sign;
  if (fields.status != FieldsStatus::kFields || !(with_cycle || without_cycle)) return false;

  const std::size_t first = with_cycle ? 1 : 0;
  for (std::size_t i = first; i < fields.count; ++i) {
    if (!std::in_range<std::int16_t>(fields.values[i])) return false;
  }
  record = {with_cycle ? fields.values[0] : 1, static_cast<std::int16_t>(fields.values[first]),
            static_cast<std::int16_t>(fields.values[first + 1]),
            static_cast<std::int16_t>(fields.values[first + 2])};
  return true;
}

std::string KSGDateString(const KSGDate& record, std::int32_t style, bool with_abbreviation) {
  if (style < 1) return "";
  const std::string month(KSGMonthName(record.month));
  switch (style) {
    case 1:
      return NumericText(record, with_abbreviation);
    case 2:
      return NumericText(record, with_abbreviation) + " (" + WeekdayText(record) + ")";
    case 4:
      return Words("Month", record.month) + " (" + month + ") " + Words("of Year", record.year) +
             Words(" of Cycle", record.cycle);
    default:
      return "The " + OrdinalText(record.day) + " day of " + month +
             Words(" in the year", record.year) + Words(" of cycle", record.cycle);
  }
}

}  // namespace tarnwick
