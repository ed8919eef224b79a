// The eclipses that can be seen at a place, one after another.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string_view>

#include "engines/ephemeris/observer.h"
#include "engines/instant.h"
#include "engines/phase_engine.h"
#include "moon/syzyg.h"
#include "sky/lunar_at_place.h"
#include "sky/solar_at_place.h"

namespace tarnwick {

// Which eclipses to look for. Each must be seen there as what it is sought for: of a total eclipse
// totality, of an umbral one the umbra, above the horizon.
enum class SoughtEclipse { kAny, kSolar, kTotalSolar, kUmbralLunar };
inline constexpr std::array<std::string_view, 4> kSoughtTexts{
    "any eclipse", "solar eclipse", "total solar eclipse", "umbral lunar eclipse"};

// What a place sees of an eclipse: of the Sun, or else of the Moon.
struct EclipseHere {
  std::optional<SolarAtPlace> solar;
  std::optional<LunarAtPlace> lunar;

  // When the most of it is seen: at its maximum there, or where that is hidden when Sun or Moon
  // rises or sets.
  UniversalTime Instant() const { return solar ? solar->seen_at : lunar->seen_at; }
};
// Nothing if the eclipse of that record is not seen there as what it is sought for.
std::optional<EclipseHere> SeeEclipse(SoughtEclipse sought, const EclipseRecord& record,
                                      const Observer& observer);

struct SeenEclipse {
  PhaseNumber at;
  UniversalTime instant;  // when the most of it is seen
};

// The eclipse of which most is seen next after a moment or last before it, by more than a second,
// so that a step from the instant of one found before leads on to another. Nothing if there is none
// within kFirstLunation to kLastLunation, or when the search is given up: `keep_searching` is asked
// once for each new or full moon that is looked at, and false ends it. A moment whose lunation does
// not fit 32 bits throws RuntimeError.
std::optional<SeenEclipse> FindSeenEclipse(SoughtEclipse sought, const Observer& observer,
                                           UniversalTime moment, bool forward,
                                           const std::function<bool()>& keep_searching);

}  // namespace tarnwick
