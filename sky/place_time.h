// How instants at a place are told: by its local mean time, and as the main window reads times.
#pragma once

#include <string>

#include "calendars/calendar_table.h"
#include "engines/instant.h"
#include "sky/geo_point.h"

namespace tarnwick {

// A place, and how the main window reads moments.
struct PlaceReading {
  GeoPoint place;
  Calendar calendar = kCE;  // of dates; CE where that is a day count
  int offset_minutes = 0;   // east of Greenwich

  friend bool operator==(const PlaceReading&, const PlaceReading&) = default;
};

// An instant in both.
struct PlaceTimes {
  std::string local;  // "18:24", by local mean time
  std::string main;   // "15:26", as the main window reads it
  std::string dates;  // both with their dates: for a tool tip
};

// To the minute as the main window shows it, or to the second. `error` is the standard error of
// the instant in seconds; where that is a minute or more, the time is told to the minute and the
// error stands behind it: "18:24 +- 11 min".
PlaceTimes PlaceTimesOf(UniversalTime instant, const PlaceReading& reading, bool with_seconds,
                        double error);

// Universal Time and longitude / 15: the day and time that the mean Sun makes at the place.
LocalCJD LocalMeanTime(UniversalTime instant, const GeoPoint& place);
UniversalTime FromLocalMeanTime(LocalCJD local, const GeoPoint& place);

// The day of local mean time that contains the instant, as a date: "2024-03-05 CE".
std::string LocalDate(UniversalTime instant, const PlaceReading& reading);

// As the main window reads it: "2024-03-05 CE 14:30 GMT + 1:00".
std::string MainDateAndTime(UniversalTime instant, const PlaceReading& reading);

// "local mean time", and the other heading: "GMT + 1:00".
inline constexpr char kLocalMeanTime[] = "local mean time";
std::string MainTimeName(const PlaceReading& reading);

}  // namespace tarnwick
