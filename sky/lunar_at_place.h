// An eclipse of the Moon as a place sees it.
//
// Everybody on the night side sees the same at the same instant, so that only the Moon's altitude
// depends on the place. The contacts are taken as symmetric about greatest eclipse; the shadow is
// that of the record of the eclipse (engines/ephemeris/lunar_eclipse.cpp).
#pragma once

#include <optional>
#include <string_view>

#include "engines/ephemeris/eclipse.h"
#include "engines/ephemeris/observer.h"
#include "engines/instant.h"
#include "engines/phase_engine.h"
#include "sky/eclipse_course.h"

namespace tarnwick {

struct LunarAtPlace {
  // The Moon, above the horizon or below, at the contacts that there are.
  std::optional<BodyAtInstant> p1;  // the Moon touches the penumbra
  std::optional<BodyAtInstant> u1;  // and the umbra
  std::optional<BodyAtInstant> u2;  // lies wholly within the umbra
  BodyAtInstant greatest;
  std::optional<BodyAtInstant> u3;  // no longer wholly
  std::optional<BodyAtInstant> u4;  // leaves the umbra
  std::optional<BodyAtInstant> p4;  // and the penumbra

  // The greatest that is seen, at greatest eclipse or at the Moon's rising or setting: penumbral,
  // partial or total; kNotEclipsed, and all else 0, if nothing is.
  EclipseType type_seen = kNotEclipsed;
  LunarMagnitudes magnitude_seen;
  UniversalTime seen_at;
};

// Of a type seen: kNotSeen, "penumbral", "partial" or "total".
std::string_view NameOfLunar(EclipseType type_seen);

// The lunar eclipse of that record for an observer; the course must be about its greatest eclipse.
LunarAtPlace LunarEclipseAtPlace(const EclipseRecord& record, const EclipseCourse& course,
                                 const Observer& observer);

}  // namespace tarnwick
