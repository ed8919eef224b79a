// Tables of phases, eclipses and days, wherever they are seen.
#pragma once

#include "sky/geo_point.h"
#include "tools/tables/printer.h"

namespace tarnwick {

// Each prints its header and rows, until the output takes no more; false then. The place is none of
// their business.

bool PrintPhases(const GeoPoint& place, const Period& period, Printer& printer);
// By their greatest phase.
bool PrintEclipses(const GeoPoint& place, const Period& period, Printer& printer);
bool PrintDates(const GeoPoint& place, const Period& period, Printer& printer);

}  // namespace tarnwick
