// Calendar files as calendar programs take them in: iCalendar, RFC 5545.
//
// Instants are written in UTC, to the second, for which Universal Time stands here; whole days have
// a date alone. Dates are those of the Gregorian calendar, also before 1582, as everywhere in such
// files, and their years run from 1 to 9999.
#pragma once

#include <ostream>
#include <string>
#include <variant>

#include "engines/instant.h"

namespace tarnwick {

struct CalendarEvent {
  std::string uid;  // no other event's, and the same in every file
  std::variant<UniversalTime, DayNumber> when;
  std::string summary;      // texts in UTF-8; lines end with "\n"
  std::string description;  // may be empty
};

// Writes a calendar file: its head when it is made, an event at each call, its end.
class CalendarWriter {
 public:
  // `stamp` is when the file is made; one that such a file cannot hold becomes the year 1. Lines
  // end with CR LF, which `out` must not change.
  CalendarWriter(std::ostream& out, UniversalTime stamp);

  // False, and nothing is written, for an event whose year such a file cannot hold.
  bool Add(const CalendarEvent& event);

  void End();

 private:
  std::ostream& out_;
  std::string stamp_;
};

}  // namespace tarnwick
