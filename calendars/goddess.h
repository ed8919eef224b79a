// The Kestrin-Sarvik Goddess Calendar (KSG), an arithmetic lunar calendar.
//
// Every year has 13 months: odd months of 30 days, even months of 29, and month 13 of 30, or 29 in
// a short year. So a year has 384 days, a short year 383. Short are the years of the cycle that
// are divisible by 10 or by 235, 48 of 470; a cycle of 470 years has 180432 days. Cycle 1 begins
// on day number 2415611, Gregorian 1901-08-14.
//
// Any day number converts. All arithmetic is checked: a number beyond its field's width throws
// RuntimeError.
//
//   KSGDate date{1, 105, 13, 11};
//   KSGDateToJDN(date);            // true, date.jdn = 2455901
//   KSGDateString(date, 1, true);  // "1-105-13-11 KSG"
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarnwick {

inline constexpr std::int32_t kKSGCycleYears = 470;

struct KSGDate {
  std::int32_t cycle = 0;  // may be zero or negative
  std::int16_t year = 0;   // [1:470]
  std::int16_t month = 0;  // [1:13]
  std::int16_t day = 0;    // [1:30]
  std::int32_t jdn = 0;    // day number
  std::int16_t valid = 0;  // 1 when KSGDateToJDN found the date to exist, else 0
};

// Whether a year of the cycle is short.
bool IsShortKSGYear(std::int32_t year);

// The days of a year of the cycle: 383 or 384.
std::int16_t KSGYearLength(std::int32_t year);

// The days of a month: 29 or 30. Every month from 13 on counts as month 13.
std::int16_t KSGMonthLength(std::int32_t year, std::int32_t month);

// Computes jdn from the other fields. A date that does not exist gives false, jdn 0 and valid 0;
// else true and valid 1.
bool KSGDateToJDN(KSGDate& record);

// Fills cycle, year, month and day from jdn.
void JDNToKSGDate(KSGDate& record);

// One cycle, year or month on, or back; jdn and valid stay as they were. Years wrap between 470 and
// 1 with the cycle, months between 13 and 1 with the year. A year's step that takes 13/30 to a
// short year ends on 13/29; a month's step from day 30 ends on the last day of the month.
void StepKSGCycle(KSGDate& record, bool forward);
void StepKSGYear(KSGDate& record, bool forward);
void StepKSGMonth(KSGDate& record, bool forward);

// The name of a month, [1:13]; empty for any other number.
std::string_view KSGMonthName(std::int32_t month);

// Reads cycle-year-month-day with an optional "-" before the cycle, or year-month-day, which means
// cycle 1; plain digits. Returns false, leaving the record as it was, for any other text and for a
// number that does not fit its field. Whether the date exists is for KSGDateToJDN to say: jdn and
// valid become 0.
bool ParseKSGDate(std::string_view text, KSGDate& record);

// The text of a date; `with_abbreviation` adds " KSG" to the numeric form.
//   1  "1-105-13-11 KSG"
//   2  "1-105-13-11 KSG (Monday, Maria 11, 1-105)"; the weekday is that of the date, not of jdn
//   3  "The 11th day of Maria in the year 105 of cycle 1"; also any style above 4
//   4  "Month 13 (Maria) of Year 105 of Cycle 1"
// A style below 1 gives the empty text.
std::string KSGDateString(const KSGDate& record, std::int32_t style, bool with_abbreviation);

}  // namespace tarnwick
