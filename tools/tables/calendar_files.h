// What the tables hold as events of a calendar file.
#pragma once

#include <optional>
#include <ostream>

#include "lists/icalendar.h"
#include "sky/geo_point.h"
#include "tools/tables/progress.h"

namespace tarnwick {

// Where the events go, and how far they have come.
class EventSink {
 public:
  // Writes the head of the file. `now` is the moment at which it is made.
  EventSink(std::ostream& out, UniversalTime now, const Progress& progress)
      : out_(out), writer_(out, now), progress_(progress) {}

  // Takes an event, if it is one, that belongs to a moment; false when the output takes no more.
  bool Take(UniversalTime moment, const std::optional<CalendarEvent>& event);
  void End() { writer_.End(); }

  // How many were too early for such a file.
  int LeftOut() const { return left_out_; }

 private:
  std::ostream& out_;
  CalendarWriter writer_;
  Progress progress_;
  int left_out_ = 0;
};

// Each gives all its events of a period to the sink, until the output takes no more; false then.
bool WritePhases(const GeoPoint& place, const Period& period, EventSink& sink);
bool WriteEclipses(const GeoPoint& place, const Period& period, EventSink& sink);
bool WriteLocalEclipses(const GeoPoint& place, const Period& period, EventSink& sink);
bool WriteCrescents(const GeoPoint& place, const Period& period, EventSink& sink);

}  // namespace tarnwick
