// The triday engine: day numbers and dates of the Lunar Liberalia Triday calendar (LLT).
//
// Months are divided into tridays of three days. They have 10 tridays, but month 6 has 9, and month
// 12 has 9 too except in the 47 long years of a cycle, those with (47 x year) mod 384 < 47. A cycle
// has 384 years or 136077 days; years have 354 or 357. Cycle 0 begins on day number 2416557,
// Gregorian 1904-03-17, the feast of Liberalia and a new moon.
//
// Every 32-bit day number converts, in constant time. A date whose day number does not fit 32 bits
// (beyond 6 million years) counts as one that does not exist. Nothing throws.
//
//   LLTDate date{0, 112, 1, 4, 3};
//   ltclunar_to_jdn(date);  // date.jdn = 2455901
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarnwick {

inline constexpr std::int32_t kLLTCycleYears = 384;
inline constexpr std::int32_t kTridaysInMonth6 = 9;

struct LLTDate {
  std::int32_t cycle = 0;     // may be zero or negative
  std::int32_t year = 0;      // [1:384]
  std::int32_t month = 0;     // [1:12]
  std::int32_t triday = 0;    // triday of the month, [1:10]
  std::int32_t day = 0;       // day of the triday, [1:3]
  std::int32_t reserved = 0;  // left alone
  std::int32_t jdn = 0;       // day number
};
static_assert(sizeof(LLTDate) == 28 && offsetof(LLTDate, day) == 16 &&
              offsetof(LLTDate, jdn) == 24);

// 1 when the date exists, else 0.
std::int32_t ltclunar_valid(const LLTDate& record);

// Computes jdn from the other fields; leaves it as it was when the date does not exist.
void ltclunar_to_jdn(LLTDate& record);

// Fills cycle, year, month, triday and day from jdn.
void jdn_to_ltclunar(LLTDate& record);

// Read a date text in plain digits: the long form cycle-year-month-triday-day with an optional "-"
// before the cycle, the short form year-month-triday-day, which means cycle 0. They return 1 and
// fill the record, day number included, when the date exists; else 0, leaving the record as it was.
std::int32_t parse_long_lunar_ltc_date(std::string_view text, LLTDate& record);
std::int32_t parse_short_lunar_ltc_date(std::string_view text, LLTDate& record);

// The tridays of month 12 in a year of the cycle: 9 or 10.
std::int32_t num_tridays_in_12th_month(std::int32_t year);

}  // namespace tarnwick
