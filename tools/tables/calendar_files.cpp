#include "tools/tables/calendar_files.h"

#include "lists/calendar_events.h"
#include "lists/finders.h"
#include "navigation/target.h"
#include "tools/tables/visit.h"

namespace tarnwick {

bool EventSink::Take(UniversalTime moment, const std::optional<CalendarEvent>& event) {
  progress_.Show(moment);
  if (event && !writer_.Add(*event)) ++left_out_;
  return out_.good();
}

bool WritePhases(const GeoPoint& /*place*/, const Period& period, EventSink& sink) {
  return VisitFound(PhaseFinder(period), [&](const FoundPhase& found) {
    return sink.Take(found.event.ut, EventOf(found));
  });
}

bool WriteEclipses(const GeoPoint& /*place*/, const Period& period, EventSink& sink) {
  return VisitFound(EclipseFinder(period, kAnyEclipseTarget), [&](const ListedEclipse& found) {
    return sink.Take(found.greatest, EventOf(found));
  });
}

bool WriteLocalEclipses(const GeoPoint& place, const Period& period, EventSink& sink) {
  return VisitFound(SeenEclipseFinder(period, place, SoughtEclipse::kAny),
                    [&](const ListedSeenEclipse& found) {
                      return sink.Take(found.eclipse.greatest, EventOf(found, {place}));
                    });
}

bool WriteCrescents(const GeoPoint& place, const Period& period, EventSink& sink) {
  return VisitFound(CrescentFinder(period, place), [&](const FoundCrescents& found) {
    return sink.Take(found.new_moon, EventOf(found, {place}));
  });
}

}  // namespace tarnwick
