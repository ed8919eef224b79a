// The steps by which a moment can be moved.
#pragma once

#include <optional>
#include <string_view>

#include "calendars/calendar_table.h"
#include "engines/instant.h"

namespace tarnwick {

inline constexpr int kStepCount = 20;
inline constexpr int kOneDayStep = 2;

// "1 minute", "1 CE month" ... "1 OLW year".
std::string_view StepText(int step);

// The calendar that a step makes the current one; nothing if it leaves that as it is.
std::optional<Calendar> StepCalendar(int step);

// The moment one step on or back, read and written `offset_minutes` east of Greenwich. Steps
// of minutes, hours and days are plain; the others change the date and keep the time of day. A date
// that does not exist is lowered to the nearest before it that does; but month 13 of an ARC year
// without one, going on, becomes month 1 of the next. OLW steps start from the displayed OLW date,
// `olw_date`, "5011-03-2-4".
// Throws RuntimeError when a number of the new date does not fit its field.
UniversalTime StepMoment(int step, bool forward, UniversalTime moment, int offset_minutes,
                         std::string_view olw_date);

}  // namespace tarnwick
