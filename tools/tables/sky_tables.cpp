#include "tools/tables/sky_tables.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "calendars/date_processing.h"
#include "engines/phases.h"
#include "engines/time_units.h"
#include "moon/clock_error.h"
#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "sky/crescent.h"
#include "sky/lunar_at_place.h"
#include "sky/rise_set.h"
#include "sky/seen_eclipses.h"
#include "sky/solar_at_place.h"
#include "tools/tables/visit.h"

namespace tarnwick {
namespace {

std::string Degrees(double radians, int decimals) {
  return FormatFixed(radians / kDegree, decimals, false);
}

std::string Cell(const std::optional<UniversalTime>& instant) {
  return instant ? Cell(*instant) : "";
}

// A contact is told only if it is seen.
std::string Contact(const std::optional<BodyAtInstant>& contact) {
  return contact && contact->Visible() ? Cell(contact->instant) : "";
}

// What the rows of both kinds of eclipse have in common, in order.
struct LocalRow {
  std::string_view seen;
  double magnitude = 0;
  std::string obscuration;
  BodyAtInstant maximum;
  double magnitude_seen = 0;
  UniversalTime seen_at;
  std::array<std::string, 4> solar_contacts;
  std::array<std::string, 6> lunar_contacts;
};

LocalRow SolarRow(const SolarAtPlace& eclipse) {
  return {NameOf(eclipse.kind_seen),
          eclipse.magnitude,
          FormatFixed(eclipse.obscuration, 5, false),
          eclipse.maximum,
          eclipse.magnitude_seen,
          eclipse.seen_at,
          {Contact(eclipse.c1), Contact(eclipse.c2), Contact(eclipse.c3), Contact(eclipse.c4)},
          {}};
}

LocalRow LunarRow(const EclipseRecord& record, const LunarAtPlace& eclipse) {
  return {NameOfLunar(eclipse.type_seen),
          record.magnitude,
          "",
          eclipse.greatest,
          eclipse.magnitude_seen.umbral,
          eclipse.seen_at,
          {},
          {Contact(eclipse.p1), Contact(eclipse.u1), Contact(eclipse.u2), Contact(eclipse.u3),
           Contact(eclipse.u4), Contact(eclipse.p4)}};
}

std::string LocalCells(const ListedSeenEclipse& found) {
  const EclipseRecord& record = found.eclipse.record;
  const LocalRow row =
      found.here.solar ? SolarRow(*found.here.solar) : LunarRow(record, *found.here.lunar);
  const TerrestrialTime greatest(record.greatest);
  std::vector<std::string> cells{std::to_string(record.lunation),
                                 std::to_string(found.eclipse.at.phase),
                                 std::to_string(record.type),
                                 std::to_string(record.saros),
                                 std::string(row.seen),
                                 FormatFixed(row.magnitude, 5, false),
                                 row.obscuration,
                                 Cell(row.maximum.instant),
                                 Degrees(row.maximum.direction.altitude, 3),
                                 Degrees(row.maximum.direction.azimuth, 3),
                                 FormatFixed(row.magnitude_seen, 5, false),
                                 Cell(row.seen_at)};
  cells.insert(cells.end(), row.solar_contacts.begin(), row.solar_contacts.end());
  cells.insert(cells.end(), row.lunar_contacts.begin(), row.lunar_contacts.end());
  cells.push_back(Optional(record.penumbral_magnitude, 5));
  cells.push_back(FormatFixed(DeltaT(greatest) * kSecondsPerMinute, 1, false));
  cells.push_back(FormatFixed(ClockError(found.eclipse.greatest), 2, false));
  return Join(cells);
}

std::string CrescentRow(std::int32_t lunation, int evening, const Crescent& crescent) {
  std::vector<std::string> cells{std::to_string(lunation), std::to_string(evening),
                                 Cell(crescent.sun), Cell(crescent.moon)};
  if (const auto& found = crescent.quantities) {
    cells.insert(cells.end(), {Cell(found->best), Degrees(found->arcl, 4), Degrees(found->arcv, 4),
                               Degrees(found->daz, 4), FormatFixed(found->width, 4, false),
                               FormatFixed(found->q, 4, false)});
  } else {
    cells.resize(cells.size() + 6);
  }
  const std::optional<char> visibility = crescent.Class();
  cells.push_back(visibility ? std::string(1, *visibility) : "");
  return Join(cells);
}

std::string PlaceCells(const std::optional<GeodeticPlace>& place) {
  return place ? Degrees(place->latitude, 5) + "," + Degrees(place->longitude, 5) : ",";
}

std::string PathRow(UniversalTime instant, double delta_t, std::string_view kind,
                    const EclipsePath& path) {
  const std::optional<CentralPlace> centre = path.CentreAt(instant);
  const PathLimits limits = path.LimitsAt(instant);
  if (centre) kind = centre->total ? "total" : "annular";
  const std::array cells{std::string(kind),
                         Cell(TerrestrialTime(instant.days + delta_t)),
                         Cell(instant),
                         PlaceCells(centre ? std::optional(centre->place) : std::nullopt),
                         PlaceCells(limits.north),
                         PlaceCells(limits.south),
                         centre ? Degrees(centre->sun_altitude, 3) : "",
                         centre ? FormatFixed(centre->duration_seconds, 2, false) : "",
                         centre ? FormatFixed(centre->width_km, 2, false) : ""};
  return Join(cells);
}

// The whole minutes within a span, its ends, and greatest eclipse.
std::vector<UniversalTime> InstantsOf(const TimeSpan& span, UniversalTime greatest) {
  std::vector<UniversalTime> instants{span.begin, span.end};
  if (greatest > span.begin && greatest < span.end) instants.push_back(greatest);
  const auto last = static_cast<std::int64_t>(std::floor(span.end.days * kMinutesPerDay));
  for (auto minute = static_cast<std::int64_t>(std::ceil(span.begin.days * kMinutesPerDay));
       minute <= last; ++minute) {
    instants.emplace_back(static_cast<double>(minute) / kMinutesPerDay);
  }
  std::ranges::sort(instants);
  return instants;
}

}  // namespace

bool PrintLocalEclipses(const GeoPoint& place, const Period& period, Printer& printer) {
  const std::string header =
      "lunation,phase,type,saros,seen,magnitude,obscuration,maximum,altitude,azimuth,"
      "magnitude_seen,seen_at,c1,c2,c3,c4,p1,u1,u2,u3,u4,p4,penumbral_magnitude,delta_t,sigma";
  if (!printer.Print(period.begin, header)) return false;
  return VisitFound(SeenEclipseFinder(period, place, SoughtEclipse::kAny),
                    [&](const ListedSeenEclipse& found) {
                      return printer.Print(found.eclipse.greatest, LocalCells(found));
                    });
}

bool PrintSunAndMoon(const GeoPoint& place, const Period& period, Printer& printer) {
  const std::string header = "day_number,sunrise,sun_transit,sunset,moonrise,moon_transit,moonset";
  if (!printer.Print(period.begin, header)) return false;
  const Observer observer = ObserverAt(place);
  const double midnight_after_greenwich = -place.longitude / 360;
  const DayNumber end = DayOf(period.end, 0);
  for (DayNumber day = DayOf(period.begin, 0); day < end; day = day + 1) {
    const UniversalTime start(NoonOf(day, 0).days - 0.5 + midnight_after_greenwich);
    const SkyDay sky(start, DeltaTDays(start));
    std::array<std::vector<UniversalTime>, kDayEvents.size()> found;
    std::size_t rows = 1;
    for (std::size_t i = 0; i < found.size(); ++i) {
      found[i] = sky.Find(kDayEvents[i].body, kDayEvents[i].event, observer);
      rows = std::max(rows, found[i].size());
    }
    for (std::size_t row = 0; row < rows; ++row) {
      std::vector<std::string> cells{std::to_string(day.value)};
      for (const auto& events : found)
        cells.push_back(row < events.size() ? Cell(events[row]) : "");
      if (!printer.Print(start, Join(cells))) return false;
    }
  }
  return true;
}

bool PrintCrescents(const GeoPoint& place, const Period& period, Printer& printer) {
  const std::string header = "lunation,evening,sunset,moonset,best,arcl,arcv,daz,w,q,class";
  if (!printer.Print(period.begin, header)) return false;
  return VisitFound(CrescentFinder(period, place), [&](const FoundCrescents& found) {
    for (int i = 3; i > 0; --i) {
      const Crescent& morning = found.mornings[static_cast<std::size_t>(i - 1)];
      if (!printer.Print(found.new_moon, CrescentRow(found.lunation, -i, morning))) return false;
    }
    for (int i = 1; i <= 3; ++i) {
      const Crescent& evening = found.evenings[static_cast<std::size_t>(i - 1)];
      if (!printer.Print(found.new_moon, CrescentRow(found.lunation, i, evening))) return false;
    }
    return true;
  });
}

std::optional<EclipsePath> FindPath(std::int32_t lunation) {
  const PhaseEvent event = FindPhaseEvent(lunation, kNewMoon);
  if (event.eclipse.type == kNotEclipsed) return std::nullopt;
  EclipsePath path(event.tt, DeltaTDays(TerrestrialTime(event.eclipse.greatest)));
  return path.UmbralPhase() ? std::optional(path) : std::nullopt;
}

bool PrintPath(std::int32_t lunation, const EclipsePath& path, Printer& printer) {
  const EclipseRecord eclipse = FindPhaseEvent(lunation, kNewMoon).eclipse;
  const double delta_t = DeltaTDays(TerrestrialTime(eclipse.greatest));
  const std::string_view kind = eclipse.type == kNonCentralTotalSolar ? "total" : "annular";
  const TimeSpan span = path.CentralPhase() ? *path.CentralPhase() : *path.UmbralPhase();
  const std::string header =
      "kind,tt,ut,latitude,longitude,north_latitude,north_longitude,south_latitude,"
      "south_longitude,altitude,duration_s,width_km";
  if (!printer.Print(span.begin, header)) return false;
  return std::ranges::all_of(InstantsOf(span, path.Greatest()), [&](UniversalTime instant) {
    return printer.Print(instant, PathRow(instant, delta_t, kind, path));
  });
}

}  // namespace tarnwick
