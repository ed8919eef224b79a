// What is wrong with the numbers of a date that a calendar has refused.
#pragma once

#include <string>
#include <string_view>

#include "calendars/calendar_table.h"

namespace tarnwick {

// The order of the numbers in a calendar's dates: "year-month-day". Empty for a day count.
std::string_view DateForm(Calendar calendar);

// The first fault of a date text without abbreviation, in one line: "February 2023 has 28 days",
// "SD years have 12 or 13 months: this one has 12". The text is one that the calendar's own routine
// refuses; for another one the answer means nothing. Never throws.
std::string DateFault(Calendar calendar, std::string_view date);

}  // namespace tarnwick
