// What the window of the sky says of Sun and Moon, in words.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "engines/instant.h"
#include "sky/eclipse_course.h"
#include "sky/place_time.h"
#include "sky/rise_set.h"

namespace tarnwick {

// "34.2° high, azimuth 121.0°", "12.5° below the horizon", "on the horizon" while only a part of
// the disc is seen above it.
std::string DirectionText(const BodyAtInstant& body);

struct MomentTexts {
  std::string time;  // by local mean time and as the main window reads it, a line each
  std::string sun;   // where they stand
  std::string moon;
};
MomentTexts MomentTextsOf(UniversalTime moment, const PlaceReading& reading);

// A line of a table of times.
struct TimedLine {
  std::string what;
  PlaceTimes times;
  std::string detail = {};
  bool seen = true;  // it happens above the horizon
};

// Rising, upper transit and setting of the Sun and of the Moon through the day of local mean time
// that contains the moment. What does not happen has words in place of its time.
std::array<TimedLine, kDayEvents.size()> DayLinesOf(UniversalTime moment,
                                                    const PlaceReading& reading);

// The first crescent of a lunation, or its last one.
struct CrescentText {
  std::string named;    // "evening of 2024-03-11 CE, easily visible (A)"
  std::string details;  // of the three evenings or mornings, a line each
};
CrescentText FirstCrescentText(std::int32_t lunation, const PlaceReading& reading);
CrescentText LastCrescentText(std::int32_t lunation, const PlaceReading& reading);

}  // namespace tarnwick
