// The eclipses that can be seen at a place, one after another.
#pragma once

#include <functional>
#include <optional>

#include "engines/ephemeris/observer.h"
#include "engines/instant.h"
#include "moon/syzyg.h"

namespace tarnwick {

// Which eclipses to look for. Each must be seen there as what it is sought for: of a total eclipse
// totality, of an umbral one the umbra, above the horizon.
enum class SoughtEclipse { kAny, kSolar, kTotalSolar, kUmbralLunar };

struct SeenEclipse {
  PhaseNumber at;
  // When the most of it is seen: at its maximum there, or where that is hidden when Sun or Moon
  // rises or sets.
  UniversalTime instant;
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
