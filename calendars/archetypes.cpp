#include "calendars/archetypes.h"

#include <array>
#include <cstddef>

#include "engines/checked_arithmetic.h"
#include "engines/floor_division.h"
#include "engines/names.h"

namespace tarnwick {
namespace {

constexpr std::int32_t kCycleYears = 1803;
constexpr std::int32_t kCycleDays = 658532;
constexpr std::int32_t kEpoch = 897474;
constexpr std::int32_t kFirstIndex = 443;  // year index of position 1 of cycle 0
constexpr std::int32_t kLeapYears = 664;   // in a cycle
constexpr std::int32_t kLongYears = 350;   // in a cycle

constexpr std::array<std::string_view, 13> kMonthNames{
    "Apollo",     "Diana",   "Hermes", "Aphrodite", "Ares",    "Zeus",      "Chronos",
    "Prometheus", "Orpheus", "Sophia", "Dionysus",  "Demeter", "Persephone"};
constexpr std::array<std::string_view, 10> kDayNames{
    "Sun Day",     "Mercury Day", "Venus Day",  "Earth Day",   "Mars Day",
    "Jupiter Day", "Saturn Day",  "Uranus Day", "Neptune Day", "Pluto Day"};

// A year is of a kind that `count` years of the cycle share when
// (count * position + 901) mod 1803 < count; 901 is half the cycle, rounded down.
constexpr bool IsOfKind(std::int32_t position, std::int32_t count) {
  return (count * position + kCycleYears / 2) % kCycleYears < count;
}

// How many of the first n years of a cycle are of that kind: the quotient of the division above
// grows by one exactly at each of them.
constexpr std::int32_t CountOfKind(std::int32_t n, std::int32_t count) {
  return (count * n + kCycleYears / 2) / kCycleYears;
}

// The days of the first n years of a cycle.
constexpr std::int32_t DaysOfYears(std::int32_t n) {
  return 354 * n + 30 * CountOfKind(n, kLeapYears) + CountOfKind(n, kLongYears);
}
static_assert(DaysOfYears(kCycleYears) == kCycleDays);

// The days of the months before month m of year index y.
std::int32_t DaysBeforeMonth(std::int32_t y, std::int32_t m) {
  const bool long_month_passed = m > 10 && IsARCLongYear(y);
  return 29 * (m - 1) + m / 2 + (long_month_passed ? 1 : 0);
}

// The number of whole years that end within the first `days` days of a cycle. The years are spread
// so evenly that the mean year misses it by one at most.
std::int32_t YearsWithin(std::int32_t days) {
  auto n = static_cast<std::int32_t>(std::int64_t{days} * kCycleYears / kCycleDays);
  if (DaysOfYears(n) > days) return n - 1;
  if (DaysOfYears(n + 1) <= days) return n + 1;
  return n;
}

bool DateExists(const ARCDate& record, std::int32_t y) {
  if (record.month < 1 || record.month > 13 || record.day < 1) return false;
  return record.day <= ARCMonthLength(y, record.month);
}

// After a step day 30 of a short month becomes 29; the rule looks at the ARC year.
void LowerDay(ARCDate& record) {
  const bool long_month = record.month == 10 && IsARCLongYear(record.year);
  if (record.day == 30 && record.month % 2 == 0 && !long_month) record.day = 29;
}

void NextMonth(ARCDate& record) {
  if (record.month < 12 || (record.month == 12 && IsARCLeapYear(record.year))) {
    ++record.month;
  } else {
    record.year = CheckedAdd(record.year, 1);
    record.month = 1;
  }
}

void PreviousMonth(ARCDate& record) {
  if (record.month > 1) {
    --record.month;
  } else {
    record.year = CheckedSubtract(record.year, 1);
    record.month = IsARCLeapYear(record.year) ? 13 : 12;
  }
}

}  // namespace

std::int16_t ARCCyclePosition(std::int32_t y) {
  return static_cast<std::int16_t>(FloorModulo(std::int64_t{y} - kFirstIndex, kCycleYears) + 1);
}

bool IsARCLeapYear(std::int32_t y) { return IsOfKind(ARCCyclePosition(y), kLeapYears); }

bool IsARCLongYear(std::int32_t y) { return IsOfKind(ARCCyclePosition(y), kLongYears); }

std::int16_t ARCCycleOf(std::int32_t y) {
  return CheckedNarrow<std::int16_t>(FloorDivide(std::int64_t{y} - kFirstIndex, kCycleYears));
}

std::int16_t ARCYearLength(std::int32_t y) {
  return static_cast<std::int16_t>(354 + (IsARCLeapYear(y) ? 30 : 0) + (IsARCLongYear(y) ? 1 : 0));
}

std::int16_t ARCMonthLength(std::int32_t y, std::int32_t m) {
  if (m < 1 || m > 13) return -1;
  if (m == 13) return IsARCLeapYear(y) ? 30 : -2;
  if (m == 10) return IsARCLongYear(y) ? 30 : 29;
  return m % 2 == 0 ? 29 : 30;
}

std::int16_t ARCYearLengthAt(std::int32_t k) {
  return ARCYearLength(CheckedAdd(k, kFirstIndex - 1));
}

bool ARCDateToJDN(ARCDate& record) {
  const std::int32_t y = CheckedAdd(record.year, 1);
  if (!DateExists(record, y)) {
    record.jdn = 0;
    record.valid = 0;
    return false;
  }
  const std::int64_t days = std::int64_t{kCycleDays} * ARCCycleOf(y) +
                            DaysOfYears(ARCCyclePosition(y) - 1) +
                            DaysBeforeMonth(y, record.month) + record.day - 1;
  record.jdn = CheckedNarrow<std::int32_t>(kEpoch + days);
  record.valid = 1;
  return true;
}

void JDNToARCDate(ARCDate& record) {
  const std::int64_t days = std::int64_t{record.jdn} - kEpoch;
  const auto cycle = static_cast<std::int32_t>(FloorDivide(days, kCycleDays));
  auto rest = static_cast<std::int32_t>(FloorModulo(days, kCycleDays));
  const std::int32_t years = YearsWithin(rest);
  rest -= DaysOfYears(years);
  const std::int32_t y = kFirstIndex + years;

  std::int32_t month = 1;
  while (month < 13 && rest >= DaysBeforeMonth(y, month + 1)) ++month;
  record.year = y + kCycleYears * cycle - 1;
  record.month = month;
  record.day = rest - DaysBeforeMonth(y, month) + 1;
}

void StepARCMonth(ARCDate& record, bool forward) {
  if (forward) {
    NextMonth(record);
  } else {
    PreviousMonth(record);
  }
  LowerDay(record);
}

void StepARCYear(ARCDate& record, bool forward) {
  record.year = CheckedAdd(record.year, forward ? 1 : -1);
  if (record.month == 13 && !IsARCLeapYear(record.year)) record.month = 12;
  LowerDay(record);
}

std::string_view ARCDayName(std::int32_t day) {
  return kDayNames[static_cast<std::size_t>(FloorModulo(std::int64_t{day} - 1, 10))];
}

std::string_view ARCMonthName(std::int32_t month) { return NameOf(kMonthNames, month); }

std::string ARCDateString(const ARCDate& record, std::int32_t style) {
  std::string numbers = NumericDate({{record.year}, {record.month, 2}, {record.day, 2}}, " ARC");
  if (style == 1) return numbers;
  const std::string month(ARCMonthName(record.month));
  const std::string year = SignedNumberText(record.year);
  std::string words = month + SignedNumberText(record.day) + ", " + year;
  std::string day_words = std::string(ARCDayName(record.day)) + ", " + words;
  switch (style) {
    case 2:
      return numbers + " (" + day_words + ")";
    case 3:
      return words;
    case 4:
      return "The " + OrdinalText(record.day) + " day of " + month + " in the year" + year;
    case 5:
      return day_words;
    default:
      return "";
  }
}

}  // namespace tarnwick
