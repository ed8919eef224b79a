// The date engine: day numbers and civil dates.
//
// A day number is the chronological Julian day number: whole days, each from midnight to midnight,
// counted so that Gregorian 2000-01-01 is 2451545. Three calendars are converted here, named by a
// letter in the date record:
//   "G"  Gregorian calendar, proleptic (its rule runs back before 1582)
//   "J"  Julian calendar, proleptic
//   "A"  Annus Novus: year y begins on Gregorian y-01-01; twelve months of 30 days and a thirteenth
//        of 5 days, 6 in a Gregorian leap year
// The letter "R" stands for the Archetypes calendar: the engine reads its texts but leaves its
// arithmetic to that calendar's own module.
//
// Years are astronomical: year 0 exists and -3200 is 3201 BCE. Every 32-bit day number converts,
// in constant time; a date converts whenever its day number fits 32 bits (about 5.8 million years
// to either side).
//
//   DateRecord date{2003, 12, 31, 'G'};
//   euro_date_to_jdn(date);   // 2453005
//   date.calendar = 'J';
//   jdn_to_euro_date(date);   // 2003-12-18
#pragma once

#include <cstdint>
#include <ctime>
#include <limits>
#include <string>
#include <string_view>

namespace tarnwick {

struct DateRecord {
  std::int32_t year = 0;        // astronomical numbering
  std::int32_t month = 0;       // [1:12], 13 for the last month of Annus Novus
  std::int32_t day = 0;         // [1:31]
  std::int32_t calendar = 'G';  // the calendar's letter
  std::int32_t jdn = 0;         // day number
  std::int32_t valid = 0;       // 1 when the date is known to exist, else 0
};

// The day number of a date that does not exist, or whose day number does not fit 32 bits.
inline constexpr std::int32_t kNoSuchDate = std::numeric_limits<std::int32_t>::min();

// The longest text that str_to_date reads.
inline constexpr std::size_t kLongestDateText = 32;

// Status codes of str_to_date.
inline constexpr std::int32_t kDateRead = 0;
inline constexpr std::int32_t kDateImpossible = -1;
inline constexpr std::int32_t kDateUnreadable = -5;

// The day number of the record's year, month and day in calendar "J", or "G" for any other letter.
// Stores it in jdn and sets valid to 1; for a date that does not exist it stores and returns
// kNoSuchDate and sets valid to 0.
std::int32_t euro_date_to_jdn(DateRecord& record);

// Fills year, month and day from jdn, in calendar "J", or "G" for any other letter.
void jdn_to_euro_date(DateRecord& record);

// The date of a day number in calendar "J", or "G" for any other letter.
DateRecord CivilDateOf(std::int32_t jdn, std::int32_t letter = 'G');

// The weekday of a day number, [0:6], 0 = Sunday.
std::int32_t euro_day_of_week(std::int32_t jdn);

// As euro_date_to_jdn, for calendar "A". With the letter "R" it sets jdn to 0, returns kNoSuchDate
// and leaves valid as it is.
std::int32_t annus_novus_date_to_jdn(DateRecord& record);

// Fills year, month and day of the Annus Novus date of jdn.
void jdn_to_annus_novus_date(DateRecord& record);

// 1 when the record's year, month and day can be a date, else 0. With the letter "R": month [1:13]
// and day [1:30]; else the Annus Novus date must exist.
std::int32_t annus_novus_date_is_valid(const DateRecord& record);

// Reads a date text, year-month-day with an optional "-" before the year, into year, month, day and
// calendar of the record. `format_letter` is the calendar's letter, "G", "J", "A" or "R";
// `separator` the character code of the separator.
// Returns
//   0   the date is read; it exists ("R": its fields are in range)
//   -1  the text has the right shape, but the date does not exist or a number exceeds 32 bits
//   -5  any other text or letter, or a text of more than 32 characters
// A failure leaves the record as it was.
std::int32_t str_to_date(std::string_view text, std::int32_t format_letter, DateRecord& record,
                         std::int32_t separator);

// Splits a Julian date (days from noon) into the Gregorian date and the fraction of the civil day,
// [0:1]. `calendar` is "A". Returns 0; or -1, leaving the results as they were, when the calendar
// is another one, the Julian date is not finite or its day number does not fit 32 bits.
std::int32_t juldat(double julian_date, std::string_view calendar, std::int32_t* year,
                    std::int32_t* month, std::int32_t* day, double* fraction);

// The days from the day number of one record to that of the other, negative when `to` comes first;
// in mode 1 both ends are counted, which adds 1. A count that does not fit 32 bits gives
// kNoSuchDate.
std::int32_t days_elapsed(const DateRecord& from, const DateRecord& to, std::int32_t mode);

// The offset of the computer's local time from GMT at this moment, daylight saving included, in
// minutes, positive east of Greenwich. 0 when the computer does not know.
std::int32_t get_timezone();

// The minutes by which one broken-down time is ahead of another of the same instant.
std::int32_t MinutesAhead(const std::tm& local, const std::tm& gmt);

// The number text with the separator (a character code) between each group of three digits of its
// integer part: "-1234567.891" becomes "-1,234,567.891". Separator 0 returns the text unchanged.
std::string separate_thousands(std::string_view number, std::int32_t separator);

}  // namespace tarnwick
