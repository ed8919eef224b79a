#include "engines/date_engine.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "engines/date_fields.h"
#include "engines/floor_division.h"
#include "engines/time_units.h"

namespace tarnwick {
namespace {

// Years are counted from 1 March here, so that the leap day ends a year and the months before it
// have the same place in every year.
struct LeapRule {
  std::int64_t period_years;
  std::int64_t period_days;
  std::int64_t epoch;  // day number of 1 March of year 0
};

constexpr LeapRule kGregorian{400, 146097, 1721120};
constexpr LeapRule kJulian{4, 1461, 1721118};

struct CivilDate {
  std::int64_t year;
  std::int32_t month;
  std::int32_t day;
};

const LeapRule& RuleOf(std::int32_t letter) { return letter == 'J' ? kJulian : kGregorian; }

// Days from 1 March to the first of the month that comes `month` months after March.
constexpr std::int64_t DaysBeforeMonth(std::int64_t month) { return (153 * month + 2) / 5; }

// Days of the first `year` years of a period; within 4 years the terms of centuries are 0.
constexpr std::int64_t DaysBeforeYear(std::int64_t year) {
  return 365 * year + year / 4 - year / 100;
}

std::int64_t DayNumber(const LeapRule& rule, const CivilDate& date) {
  const std::int64_t year = date.year - (date.month <= 2 ? 1 : 0);
  return rule.epoch + FloorDivide(year, rule.period_years) * rule.period_days +
         DaysBeforeYear(FloorModulo(year, rule.period_years)) +
         DaysBeforeMonth((date.month + 9) % 12) + date.day - 1;
}

CivilDate DateOfDay(const LeapRule& rule, std::int64_t day_number) {
  const std::int64_t days = day_number - rule.epoch;
  const std::int64_t period = FloorDivide(days, rule.period_days);
  const std::int64_t day = FloorModulo(days, rule.period_days);
  // Without the leap days passed so far every year has 365 days.
  const std::int64_t year = (day - day / 1460 + day / 36524 - day / 146096) / 365;
  const std::int64_t day_of_year = day - DaysBeforeYear(year);
  const std::int64_t month = (5 * day_of_year + 2) / 153;
  return {period * rule.period_years + year + (month >= 10 ? 1 : 0),
          static_cast<std::int32_t>(month < 10 ? month + 3 : month - 9),
          static_cast<std::int32_t>(day_of_year - DaysBeforeMonth(month) + 1)};
}

bool IsLeapYear(std::int32_t letter, std::int32_t year) {
  return year % 4 == 0 && (letter == 'J' || year % 100 != 0 || year % 400 == 0);
}

bool EuroDateExists(const DateRecord& record) {
  constexpr std::array<std::int32_t, 12> kLengths{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (record.month < 1 || record.month > 12 || record.day < 1) return false;
  const bool leap_month = record.month == 2 && IsLeapYear(record.calendar, record.year);
  return record.day <= kLengths[static_cast<std::size_t>(record.month - 1)] + (leap_month ? 1 : 0);
}

std::int32_t StoreDayNumber(DateRecord& record, bool exists, std::int64_t day_number) {
  const bool valid = exists && std::in_range<std::int32_t>(day_number);
  record.valid = valid ? 1 : 0;
  record.jdn = valid ? static_cast<std::int32_t>(day_number) : kNoSuchDate;
  return record.jdn;
}

bool DateCanBeRead(DateRecord record) {
  switch (record.calendar) {
    case 'R':
      return annus_novus_date_is_valid(record) != 0;
    case 'A':
      return annus_novus_date_to_jdn(record) != kNoSuchDate;
    default:
      return euro_date_to_jdn(record) != kNoSuchDate;
  }
}

std::int64_t MinutesOf(const std::tm& time) {
  const CivilDate date{std::int64_t{time.tm_year} + 1900, time.tm_mon + 1, time.tm_mday};
  return DayNumber(kGregorian, date) * kMinutesPerDay +
         std::int64_t{time.tm_hour} * kMinutesPerHour + time.tm_min;
}

}  // namespace

std::int32_t euro_date_to_jdn(DateRecord& record) {
  const bool exists = EuroDateExists(record);
  const CivilDate date{record.year, record.month, record.day};
  return StoreDayNumber(record, exists, exists ? DayNumber(RuleOf(record.calendar), date) : 0);
}

void jdn_to_euro_date(DateRecord& record) {
  const CivilDate date = DateOfDay(RuleOf(record.calendar), record.jdn);
  record.year = static_cast<std::int32_t>(date.year);
  record.month = date.month;
  record.day = date.day;
}

DateRecord CivilDateOf(std::int32_t jdn, std::int32_t letter) {
  DateRecord record;
  record.calendar = letter;
  record.jdn = jdn;
  jdn_to_euro_date(record);
  return record;
}

std::int32_t euro_day_of_week(std::int32_t jdn) {
  return static_cast<std::int32_t>(FloorModulo(std::int64_t{jdn} + 1, 7));
}

std::int32_t annus_novus_date_to_jdn(DateRecord& record) {
  if (record.calendar == 'R') {
    record.jdn = 0;
    return kNoSuchDate;
  }
  const std::int64_t new_year = DayNumber(kGregorian, {record.year, 1, 1});
  return StoreDayNumber(record, annus_novus_date_is_valid(record) != 0,
                        new_year + 30 * (std::int64_t{record.month} - 1) + record.day - 1);
}

void jdn_to_annus_novus_date(DateRecord& record) {
  const std::int64_t year = DateOfDay(kGregorian, record.jdn).year;
  const std::int64_t day_of_year = record.jdn - DayNumber(kGregorian, {year, 1, 1});
  record.year = static_cast<std::int32_t>(year);
  record.month = static_cast<std::int32_t>(day_of_year / 30 + 1);
  record.day = static_cast<std::int32_t>(day_of_year % 30 + 1);
}

std::int32_t annus_novus_date_is_valid(const DateRecord& record) {
  std::int32_t last_day = 30;
  if (record.month == 13 && record.calendar != 'R') last_day = IsLeapYear('G', record.year) ? 6 : 5;
  const bool valid =
      record.month >= 1 && record.month <= 13 && record.day >= 1 && record.day <= last_day;
  return valid ? 1 : 0;
}

std::int32_t str_to_date(std::string_view text, std::int32_t format_letter, DateRecord& record,
                         std::int32_t separator) {
  const bool known_letter =
      format_letter == 'G' || format_letter == 'J' || format_letter == 'A' || format_letter == 'R';
  if (!known_letter || text.size() > kLongestDateText) return kDateUnreadable;

  const DateFields fields = ParseDateFields(text, static_cast<char>(separator));
  if (fields.status == FieldsStatus::kBadShape || fields.count != 3) return kDateUnreadable;
  if (fields.status == FieldsStatus::kTooLarge) return kDateImpossible;

  DateRecord date = record;
  date.calendar = format_letter;
  date.year = fields.values[0];
  date.month = fields.values[1];
  date.day = fields.values[2];
  if (!DateCanBeRead(date)) return kDateImpossible;
  record = date;
  return kDateRead;
}

std::int32_t juldat(double julian_date, std::string_view calendar, std::int32_t* year,
                    std::int32_t* month, std::int32_t* day, double* fraction) {
  const double from_midnight = julian_date + 0.5;
  const double whole_days = std::floor(from_midnight);
  const bool fits = whole_days >= std::numeric_limits<std::int32_t>::min() &&
                    whole_days <= std::numeric_limits<std::int32_t>::max();
  if (calendar != "A" || !fits) return -1;

  const CivilDate date = DateOfDay(kGregorian, static_cast<std::int64_t>(whole_days));
  *year = static_cast<std::int32_t>(date.year);
  *month = date.month;
  *day = date.day;
  *fraction = from_midnight - whole_days;
  return 0;
}

std::int32_t days_elapsed(const DateRecord& from, const DateRecord& to, std::int32_t mode) {
  const std::int64_t days = std::int64_t{to.jdn} - from.jdn + (mode == 1 ? 1 : 0);
  return std::in_range<std::int32_t>(days) ? static_cast<std::int32_t>(days) : kNoSuchDate;
}

std::int32_t get_timezone() {
  const std::time_t now = std::time(nullptr);
  // Both calls may fill the same static record, so the first must be copied before the second.
  // The library has no other call, and nothing else in the program uses these.
  // cppcheck-suppress localtimeCalled
  const std::tm* filled = std::localtime(&now);
  if (filled == nullptr) return 0;
  const std::tm local = *filled;
  filled = std::gmtime(&now);
  return filled == nullptr ? 0 : MinutesAhead(local, *filled);
}

std::int32_t MinutesAhead(const std::tm& local, const std::tm& gmt) {
  return static_cast<std::int32_t>(MinutesOf(local) - MinutesOf(gmt));
}

std::string separate_thousands(std::string_view number, std::int32_t separator) {
  std::string result(number);
  if (separator == 0) return result;
  const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
  const auto first = std::find_if(number.begin(), number.end(), is_digit);
  const auto end = std::find_if_not(first, number.end(), is_digit);
  for (auto place = end; place - first > 3;) {
    place -= 3;
    result.insert(static_cast<std::size_t>(place - number.begin()), 1,
                  static_cast<char>(separator));
  }
  return result;
}

}  // namespace tarnwick
