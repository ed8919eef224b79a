// The Archetypes Calendar (ARC), an arithmetic lunisolar calendar.
//
// Years have 12 months, or 13 in a leap year. Odd months have 30 days and even months 29, but month
// 10 has 30 in a long year. 1803 years make a cycle of 22300 months and 658532 days, over which 664
// leap years and 350 long years are spread evenly by a rule on the position of the year in the
// cycle. Day 1 of cycle 0 is day number 897474, Gregorian -2255-02-05, ARC 442-01-01.
//
// Two numbers name a year: the ARC year, which stands in dates, and the year index y = ARC year + 1
// of the conversions. The steps apply the leap and long rules to the ARC year itself, the
// conversions to the year index. That is how the calendar is defined; so a step can arrive at a
// date that ARCDateToJDN then finds not to exist.
//
// Any day number converts. All arithmetic is checked: a year or day number beyond 32 bits throws
// RuntimeError.
//
//   ARCDate date{4708, 11, 11};
//   ARCDateToJDN(date);      // true, date.jdn = 2455901
//   ARCDateString(date, 3);  // "Dionysus 11,  4708"
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "calendars/text.h"

namespace tarnwick {

struct ARCDate {
  std::int32_t year = 0;   // ARC year, may be zero or negative
  std::int32_t month = 0;  // [1:13]
  std::int32_t day = 0;    // [1:30]
  std::int32_t reserved = 0;
  std::int32_t jdn = 0;    // day number
  std::int32_t valid = 0;  // 1 when ARCDateToJDN found the date to exist, else 0
};

// The position of year index y in its cycle, [1:1803], also for negative years.
std::int16_t ARCCyclePosition(std::int32_t y);

// Whether year index y has a month 13.
bool IsARCLeapYear(std::int32_t y);

// Whether month 10 of year index y has 30 days.
bool IsARCLongYear(std::int32_t y);

// The number of the cycle that holds year index y; cycle 0 holds [443:2245]. Throws RuntimeError
// beyond 16 bits (59 million years).
std::int16_t ARCCycleOf(std::int32_t y);

// The days of year index y: 354, 355, 384 or 385.
std::int16_t ARCYearLength(std::int32_t y);

// The days of month m of year index y; -1 for m outside [1:13], -2 for month 13 of a year without.
std::int16_t ARCMonthLength(std::int32_t y, std::int32_t m);

// The days of the year at position k of a cycle.
std::int16_t ARCYearLengthAt(std::int32_t k);

// Computes jdn from year, month and day. A date that does not exist gives false, jdn 0 and valid 0;
// else true and valid 1.
bool ARCDateToJDN(ARCDate& record);

// Fills year, month and day from jdn.
void JDNToARCDate(ARCDate& record);

// One month or one year on, or back; jdn and valid stay as they were. Month 13 exists in the ARC
// years that pass IsARCLeapYear; a year's step from there to a year without ends in month 12. Day
// 30 becomes 29 in an even month, except month 10 of an ARC year that passes IsARCLongYear.
void StepARCMonth(ARCDate& record, bool forward);
void StepARCYear(ARCDate& record, bool forward);

// The name of a day by its place in the decade of the month: "Sun Day" to "Pluto Day".
std::string_view ARCDayName(std::int32_t day);

// The name of a month, [1:13]; empty for any other number.
std::string_view ARCMonthName(std::int32_t month);

// The text of a date. Years and days after a blank are signed numbers, which brings their own blank
// when not negative: hence the two blanks before the year in styles 2, 3 and 5.
//   1  "4708-11-11 ARC"
//   2  "4708-11-11 ARC (Sun Day, Dionysus 11,  4708)"
//   3  "Dionysus 11,  4708"
//   4  "The 11th day of Dionysus in the year 4708"
//   5  "Sun Day, Dionysus 11,  4708"
// Any other style gives the empty text.
std::string ARCDateString(const ARCDate& record, std::int32_t style);

}  // namespace tarnwick
