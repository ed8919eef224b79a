#pragma once

#include "calendars/calendar_table.h"

namespace tarnwick {

// The texts of a moment (AJD, Universal Time) in a calendar, read at `offset_minutes` east of
// Greenwich.
DateTexts DateTextsOf(Calendar calendar, double ajd, int offset_minutes);

}  // namespace tarnwick
