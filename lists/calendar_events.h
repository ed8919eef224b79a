// What the finders find as events of a calendar file.
//
// Phases and eclipses are instants; days on which a crescent is seen first or months begin together
// are whole days. The descriptions tell the instant as sure as it is, and dates before 1582-10-15
// by the Julian calendar too.
#pragma once

#include <optional>
#include <string>

#include "lists/finders.h"
#include "lists/icalendar.h"
#include "sky/geo_point.h"

namespace tarnwick {

struct EventPlace {
  GeoPoint point;
  std::string name = {};  // where it is empty, latitude and longitude stand for it
};

// "Full moon".
CalendarEvent EventOf(const FoundPhase& found);

// "Total lunar eclipse", at greatest eclipse.
CalendarEvent EventOf(const ListedEclipse& found);

// "Lunar eclipse seen as total at Babylon", when the most of it is seen. The description has the
// contacts, and what is seen if the clock errs.
CalendarEvent EventOf(const ListedSeenEclipse& found, const EventPlace& place);

// "First crescent at Babylon (A)", on the day of local mean time of its evening: of class A or B
// or, where none of the lunation is, of class C. Nothing where it is not seen.
std::optional<CalendarEvent> EventOf(const FoundCrescents& found, const EventPlace& place);

// "First of the month in SD, ARC, LLT and KSG".
CalendarEvent EventOfCoincidence(DayNumber day);

}  // namespace tarnwick
