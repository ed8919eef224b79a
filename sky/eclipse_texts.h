// What the window of the sky says of an eclipse, in words.
#pragma once

#include <string>
#include <vector>

#include "engines/phase_engine.h"
#include "sky/place_time.h"
#include "sky/sky_texts.h"

namespace tarnwick {

// "Total solar eclipse of 1999-08-11 CE, saros 145"; before 1582-10-15 by the Julian calendar, and
// before the year 1 with the year that historians count: "-584-05-28 JC (-584, 585 BCE)".
std::string EclipseTitle(const EclipseRecord& record, const PlaceReading& reading);

// An eclipse as a place sees it.
struct EclipseTexts {
  std::string seen;  // "Seen here as partial, magnitude 0.93, 92.1 % of the Sun covered"
  // The contacts, the maximum and, if that is hidden, when the most is seen, in the order of time;
  // the detail of each tells where Sun or Moon stands.
  std::vector<TimedLine> contacts;
  std::string certainty;  // how sure the times are, and what is seen if the clock errs
};
EclipseTexts EclipseTextsOf(const EclipseRecord& record, const PlaceReading& reading);

// What it is at its greatest for the whole Earth: "Greatest eclipse at 10:59:52 GMT, 45.08 N
// 24.29 E: total for 2 min 23 s, path 112 km wide", the width while the Sun stands high enough for
// it to mean something; of one that is not central the magnitude alone.
std::string GreatestText(const EclipseRecord& record, const PlaceReading& reading);

}  // namespace tarnwick
