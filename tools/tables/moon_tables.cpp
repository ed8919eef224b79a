#include "tools/tables/moon_tables.h"

#include <array>
#include <string>

#include "calendars/calendar_table.h"
#include "calendars/date_processing.h"
#include "calendars/text.h"
#include "engines/date_engine.h"
#include "lists/finders.h"
#include "navigation/target.h"
#include "tools/tables/visit.h"

namespace tarnwick {
namespace {

constexpr std::array kDateColumns{kCE, kJC, kARC, kSD, kLLT, kKSG, kOLW};

std::string EclipseRow(const ListedEclipse& found) {
  const EclipseRecord& eclipse = found.record;
  const std::array cells{std::to_string(found.at.lunation),
                         std::to_string(found.at.phase),
                         std::to_string(eclipse.type),
                         std::to_string(eclipse.saros),
                         Cell(TerrestrialTime(eclipse.greatest)),
                         Cell(found.greatest),
                         FormatFixed(eclipse.gamma, 5, false),
                         FormatFixed(eclipse.magnitude, 5, false),
                         Optional(eclipse.penumbral_magnitude, 5),
                         Optional(eclipse.penumbral_minutes, 3),
                         Optional(eclipse.umbral_minutes, 3),
                         Optional(eclipse.total_minutes, 3)};
  return Join(cells);
}

}  // namespace

bool PrintPhases(const GeoPoint& /*place*/, const Period& period, Printer& printer) {
  const std::string header = "lunation,phase,tt,ut";
  if (!printer.Print(period.begin, header)) return false;
  return VisitFound(PhaseFinder(period), [&](const FoundPhase& found) {
    const std::array cells{std::to_string(found.at.lunation), std::to_string(found.at.phase),
                           Cell(found.event.tt), Cell(found.event.ut)};
    return printer.Print(found.event.ut, Join(cells));
  });
}

bool PrintEclipses(const GeoPoint& /*place*/, const Period& period, Printer& printer) {
  const std::string header =
      "lunation,phase,type,saros,tt,ut,gamma,magnitude,penumbral_magnitude,penumbral,umbral,total";
  if (!printer.Print(period.begin, header)) return false;
  return VisitFound(EclipseFinder(period, kAnyEclipseTarget), [&](const ListedEclipse& found) {
    return printer.Print(found.greatest, EclipseRow(found));
  });
}

bool PrintDates(const GeoPoint& /*place*/, const Period& period, Printer& printer) {
  std::string header = "day_number,weekday";
  for (const Calendar calendar : kDateColumns)
    header += "," + std::string(AbbreviationOf(calendar));
  if (!printer.Print(period.begin, header)) return false;
  const DayNumber end = DayOf(period.end, 0);
  std::string row;
  for (DayNumber day = DayOf(period.begin, 0); day < end; day = day + 1) {
    const UniversalTime noon = NoonOf(day, 0);
    row = std::to_string(day.value) + ',' + std::to_string(euro_day_of_week(day.value));
    for (const Calendar calendar : kDateColumns) {
      row += ',';
      row += DateCell(calendar, noon, 0);
    }
    if (!printer.Print(noon, row)) return false;
  }
  return true;
}

}  // namespace tarnwick
