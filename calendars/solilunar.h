// The Sarvik-Dolmer Solilunar Calendar (SD): its texts, names and steps. The engine holds the rules
// of its years and months.
//
// Arithmetic of the steps is checked: a number beyond 32 bits throws RuntimeError.
//
//   SDDate date{33, 31, 9, 11};
//   SDDateToJDN(date);      // true, date.jdn = 2455901
//   SDDateString(date, 3);  // "11 Ibrahim in the year 31, cycle 33"
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engines/solilunar_engine.h"

namespace tarnwick {

// Computes jdn from the other fields. A date that does not exist gives false, jdn 0 and valid 0;
// else true and valid 1.
bool SDDateToJDN(SDDate& record);

// Fills cycle, year, month and day from jdn. Returns the number of days of the month.
std::int16_t JDNToSDDate(SDDate& record);

// Reads cycle-year-month-day, plain digits with an optional "-" before the cycle, into the record.
// Returns false, leaving the record as it was, for any other text and for a date that does not
// exist.
bool ParseSDDate(std::string_view text, SDDate& record);

// The name of a month, [1:13]; empty for any other number.
std::string_view SDMonthName(std::int32_t month);

// Whether a year has a month 13, and how many months it has.
bool IsLongSDYear(std::int32_t year, std::int32_t cycle);
std::int16_t SDMonthsInYear(std::int32_t year, std::int32_t cycle);

// The days of the record's month, 29 or 30; 0 for a month that does not exist. `extra` becomes the
// number of months of its year.
std::int16_t SDMonthLength(const SDDate& record, std::int16_t& extra);

// Where the year or the month has fewer months or days than the date names, sets the last one.
void ClampSDDate(SDDate& record);

// One year or month on, or back, ending with ClampSDDate; jdn stays as it was. Years wrap between
// 60 and 1 with the cycle, months between the last of their year and 1 with the year.
void StepSDYear(SDDate& record, bool forward);
void StepSDMonth(SDDate& record, bool forward);

// The text of a date.
//   1  "3-07-02-05 SD"
//   2  "3-07-02-05 SD (Bruno 5, 3-7)"
//   3  "5 Bruno in the year 7, cycle 3"; cycle 0 is not mentioned
// Any other style: "The 5th day of Bruno in the year 7, cycle 3".
std::string SDDateString(const SDDate& record, std::int32_t style);

}  // namespace tarnwick
