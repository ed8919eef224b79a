// The Lunar Liberalia Triday Calendar (LLT): its texts, names and steps. The engine holds the rules
// of its years and months.
//
// Arithmetic of the steps is checked: a number beyond 32 bits throws RuntimeError.
//
//   LLTDate date{0, 112, 1, 4, 3};
//   LLTToJDN(date);          // true, date.jdn = 2455901
//   LLTDateString(date, 1);  // "112-01-04-3 LLT"
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engines/triday_engine.h"

namespace tarnwick {

// Whether the date exists.
bool LLTValid(const LLTDate& record);

// Computes jdn from the other fields. Returns false, leaving jdn as it was, when the date does not
// exist.
bool LLTToJDN(LLTDate& record);

// Fills cycle, year, month, triday and day from jdn.
void JDNToLLT(LLTDate& record);

// Reads year-month-triday-day, which means cycle 0, or cycle-year-month-triday-day with an optional
// "-" before the cycle, plain digits, into the record. Returns false, leaving the record as it was,
// for any other text and for a date that does not exist.
bool ParseLLTDate(std::string_view text, LLTDate& record);

// The name of a day of the triday, [1:3]; of a month, [1:12], in full or as it fits a narrow cell.
// Empty for any other number.
std::string_view LLTDayName(std::int32_t day);
std::string_view LLTMonthName(std::int32_t month);
std::string_view LLTShortMonthName(std::int32_t month);

// Where month 6 or 12 has fewer tridays than the date names, sets the last day of the month.
void ClampLLTTriday(LLTDate& record);

// One year or month on, or back, ending with ClampLLTTriday; jdn stays as it was. Years wrap
// between 384 and 1 with the cycle, months between 12 and 1 with the year.
void StepLLTYear(LLTDate& record, bool forward);
void StepLLTMonth(LLTDate& record, bool forward);

// The text of a date; cycle 0 is not mentioned.
//   1  "2-099-04-06-1 LLT"
//   2  "2-099-04-06-1 LLT (Sophiesday 6 Phaionios 99)"
//   3  "Sophiesday in the 6th triday of Phaionios in the year 99, Cycle 2"; also any style above
// A style below 1 gives the empty text.
std::string LLTDateString(const LLTDate& record, std::int32_t style);

}  // namespace tarnwick
