// The date of a day number, whatever the calendar.
#pragma once

#include "calendars/archetypes.h"
#include "calendars/goddess.h"
#include "calendars/lunar_week.h"
#include "calendars/solilunar.h"
#include "calendars/triday.h"
#include "engines/instant.h"

namespace tarnwick {

// Fills a record from its jdn.
inline void FillDate(ARCDate& record) { JDNToARCDate(record); }
inline void FillDate(SDDate& record) { JDNToSDDate(record); }
inline void FillDate(LLTDate& record) { JDNToLLT(record); }
inline void FillDate(KSGDate& record) { JDNToKSGDate(record); }
inline void FillDate(OLWDate& record) { JDNToOLWDate(record); }

// DateOfDay<ARCDate>(DayNumber(2455901)) is year 4708, month 11, day 11. An OLWDate takes an OLW
// day number.
template <class Date>
Date DateOfDay(DayNumber day_number) {
  Date date;
  date.jdn = day_number.value;
  FillDate(date);
  return date;
}

}  // namespace tarnwick
