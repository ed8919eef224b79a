// The Ostrel Lunar Week Calendar (OLW).
//
// A month is a lunation by the true Moon: it begins on the day after the day of its new moon and
// ends with the day of the next. Its four weeks run likewise from principal phase to principal
// phase and so have six to nine days. A year begins with the new moon nearest to the March equinox
// of the Gregorian year (OLW year - 3000) and has 12 or 13 months. A day begins at 6 hours; its
// number is the whole part of CJD - 0.25, rounded down.
//
// Phases come in Universal Time from moon/syzyg.h. A number that does not fit 32 bits throws
// RuntimeError.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "engines/instant.h"
#include "engines/time_units.h"

namespace tarnwick {

struct OLWDate {
  std::int32_t year = 0;
  std::int32_t month = 0;  // [1:13]
  std::int32_t week = 0;   // [1:4]
  std::int32_t day = 0;    // of the week, [1:9]
  std::int32_t reserved = 0;
  std::int32_t jdn = 0;  // OLW day number
};

// A day begins so much later than the civil day.
inline constexpr std::int32_t kOLWDayShiftHours = 6;
inline constexpr double kOLWDayShift = static_cast<double>(kOLWDayShiftHours) / kHoursPerDay;

// What validation says of a date.
inline constexpr std::int16_t kOLWValid = 0;
inline constexpr std::int16_t kOLWBadText = -2;
inline constexpr std::int16_t kOLWBadMonth = -3;  // outside 1 to 13, or the year has no month 13
inline constexpr std::int16_t kOLWBadWeek = -4;
inline constexpr std::int16_t kOLWBadDay = -5;  // outside 1 to 9, or beyond the week

// The start of the OLW day that contains an instant, and its day number.
UniversalTime OLWDayStart(UniversalTime instant);
DayNumber OLWDayNumber(UniversalTime instant);

// The March equinox of a Gregorian year.
UniversalTime OLWYearReference(std::int32_t gregorian_year);

// The new moon nearest to an instant, the earlier of two equally near.
void NearestNewMoon(UniversalTime t, UniversalTime& instant, std::int32_t& lunation);

// Validates month, week and day, in that order, and computes jdn. `error` is one of the codes
// above; the record keeps its jdn unless it is kOLWValid.
void OLWDateToJDN(OLWDate& record, std::int16_t& error);
// The inverse. Returns the number of days of the month.
std::int16_t JDNToOLWDate(OLWDate& record);

// Whether a year is read at all: those of -9999 to 9999 CE.
bool IsOLWYearInReach(std::int32_t olw_year);

// Reads "year-month-week-day" with an optional "-" before the year. kOLWBadText for a text of
// another shape or a year out of reach; else what OLWDateToJDN finds.
std::int16_t ParseOLWDate(std::string_view text, OLWDate& record);

// One week, month or year on or back; a month that the new year does not have becomes its last, and
// the day is lowered to the length of the new week.
void StepOLWWeek(OLWDate& record, bool forward);
void StepOLWMonth(OLWDate& record, bool forward);
void StepOLWYear(OLWDate& record, bool forward);
// Lowers the day until the week has it, never below 1.
void ClampOLWDay(OLWDate& record);

// The name of the record's day. The first five days are named from the beginning of the week, the
// others from its end, which is always "Moonday". Empty for a date that does not exist.
std::string_view OLWDayName(const OLWDate& record);
std::string_view OLWWeekName(std::int32_t week);
std::string_view OLWMonthName(std::int32_t month);
std::string_view OLWShortMonthName(std::int32_t month);

// Style 1: "5011-03-2-4 OLW"; 2: "Dayfour in Weektwo of Clark, 5011"; any other: empty.
std::string OLWDateString(const OLWDate& record, std::int32_t style);

}  // namespace tarnwick
