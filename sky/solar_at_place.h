// An eclipse of the Sun as a place sees it.
//
// All is topocentric. With the semi-diameters s of the Sun and m of the Moon, and the distance d of
// their centres, the eclipse is partial from d = s + m on, and total or annular from d = |m - s|
// on. The Moon's semi-diameter is that of its mean limb at the outer contacts and for the partial
// phase, that of the valleys of its limb for the central one (shadow_axis.h).
//
// Sources: Explanatory Supplement to the Astronomical Almanac, chapter 8; Meeus, Astronomical
// Algorithms, 2nd ed., chapter 54.
#pragma once

#include <optional>
#include <string_view>

#include "engines/ephemeris/observer.h"
#include "engines/instant.h"
#include "sky/eclipse_course.h"

namespace tarnwick {

// From the least to the greatest.
enum class SolarKind { kNone, kPartial, kAnnular, kTotal };

// kNotSeen, "partial", "annular" or "total".
std::string_view NameOf(SolarKind kind);

struct SolarAtPlace {
  // Kind, magnitude and obscuration as they would be if the Earth were transparent.
  SolarKind kind = SolarKind::kNone;
  double magnitude = 0;    // covered part of the Sun's diameter; total, annular: ratio of diameters
  double obscuration = 0;  // covered part of its area
  BodyAtInstant maximum;   // least distance of the centres, also where there is no eclipse
  std::optional<BodyAtInstant> c1;  // the partial phase begins
  std::optional<BodyAtInstant> c2;  // the total or annular phase begins
  std::optional<BodyAtInstant> c3;  // and ends
  std::optional<BodyAtInstant> c4;  // the partial phase ends

  // The greatest that is seen, at the maximum or at the Sun's rising or setting; 0 if nothing is.
  SolarKind kind_seen = SolarKind::kNone;
  double magnitude_seen = 0;
  UniversalTime seen_at;
};

// The solar eclipse of that course for an observer.
SolarAtPlace SolarEclipseAtPlace(const EclipseCourse& course, const Observer& observer);

// For contours: magnitude_seen, which as the covered part of the diameter goes on where the eclipse
// turns total or annular, and falls below 0 the farther the discs stay apart while the Sun is up;
// at least kSunNotSeen, which it is where the Sun stays down for hours about the eclipse.
inline constexpr double kSunNotSeen = -1;
double ContinuedMagnitudeSeen(const EclipseCourse& course, const Observer& observer);

}  // namespace tarnwick
