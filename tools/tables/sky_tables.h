// Tables of what is seen from a place, and of the paths of eclipses.
#pragma once

#include <cstdint>
#include <optional>

#include "sky/eclipse_path.h"
#include "sky/geo_point.h"
#include "tools/tables/printer.h"

namespace tarnwick {

// Each prints its header and rows, until the output takes no more; false then.

// Every eclipse of which anything is seen there, by its greatest phase.
bool PrintLocalEclipses(const GeoPoint& place, const Period& period, Printer& printer);
// Risings, transits and settings of the days of local mean time. Where one comes twice a day has
// two rows.
bool PrintSunAndMoon(const GeoPoint& place, const Period& period, Printer& printer);
// Three mornings before and three evenings after every new moon of the period.
bool PrintCrescents(const GeoPoint& place, const Period& period, Printer& printer);

// The solar eclipse of a lunation, if its umbra or antumbra meets the Earth.
std::optional<EclipsePath> FindPath(std::int32_t lunation);
// Its central line, or only its limits, minute by minute of Universal Time.
bool PrintPath(std::int32_t lunation, const EclipsePath& path, Printer& printer);

}  // namespace tarnwick
