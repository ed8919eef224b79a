// The solilunar engine: day numbers and dates of the Sarvik-Dolmer calendar (SD).
//
// A year begins with the new moon nearest to the March equinox, reckoned by a cycle of mean months:
// 6840 years hold 84599 months and 2498258 days, and 2519 of those years are long, with a 13th
// month. Odd months have 30 days and even months 29, except that the last month of a year takes the
// 29 or 30 days that are left before the next. So years have 354, 355, 383 or 384 days.
//
// Years are counted in cycles of 60. The absolute year, 60 x cycle + year, is the Common Era year
// in whose spring the SD year begins. Year 1 of cycle 0 begins on day number 1721495.
//
// Every 32-bit day number converts, in constant time. A date whose day number does not fit 32 bits
// (beyond 5.8 million years) counts as one that does not exist. Nothing throws.
//
//   SDDate date{33, 31, 9, 11};
//   sdslcdate_to_jdn(date);  // date.valid = 1, date.jdn = 2455901
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarnwick {

inline constexpr std::int32_t kSDCycleYears = 60;

struct SDDate {
  std::int32_t cycle = 0;     // may be zero or negative
  std::int32_t year = 0;      // [1:60]
  std::int32_t month = 0;     // [1:12], [1:13] in a long year
  std::int32_t day = 0;       // [1:30]
  std::int32_t valid = 0;     // 1 when sdslcdate_to_jdn found the date to exist, else 0
  std::int32_t extra = 0;     // the number of months of the year, 12 or 13
  std::int32_t reserved = 0;  // left alone
  std::int32_t jdn = 0;       // day number
};
static_assert(sizeof(SDDate) == 32 && offsetof(SDDate, valid) == 16 && offsetof(SDDate, jdn) == 28);

// Computes jdn from cycle, year, month and day and sets valid to 1; for a date that does not exist
// it sets jdn and valid to 0. Fills extra in either case.
void sdslcdate_to_jdn(SDDate& record);

// Fills cycle, year, month, day and extra from jdn. Returns the number of days of the month.
std::int32_t jdn_to_sdslcdate(SDDate& record);

// Reads cycle-year-month-day, plain digits with an optional "-" before the cycle. Returns 1 and
// fills the record, day number included, when the date exists; else 0, leaving the record as it
// was.
std::int32_t sdslc_datestr_to_sdslc_date(std::string_view text, SDDate& record);

// 1 for a year of 13 months, else 0. The year may lie outside its cycle: year 61 of cycle 0 is
// year 1 of cycle 1.
std::int32_t is_long_sdslc_year(std::int32_t year, std::int32_t cycle);

// The days of the record's month, 29 or 30; 0 for a month that does not exist. The record holds 0
// as its cycle and the absolute year as its year. Fills extra.
std::int32_t sdmonth_length(SDDate& record);

}  // namespace tarnwick
