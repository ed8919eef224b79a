// A moment in the words of a calendar.
#pragma once

#include <string>

#include "calendars/calendar_table.h"

namespace tarnwick {

// The texts of a moment in a calendar, read at `offset_minutes` east of Greenwich.
DateTexts DateTextsOf(Calendar calendar, UniversalTime moment, int offset_minutes);

// The short form of a date alone; nothing of a day count.
std::string ShortDateText(Calendar calendar, UniversalTime moment, int offset_minutes);

}  // namespace tarnwick
