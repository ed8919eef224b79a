// What several tables go through: the phases of a period.
#pragma once

#include <cstdint>

#include "engines/phases.h"
#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "tools/tables/printer.h"

namespace tarnwick {

// Calls visit(lunation, phase, event) for the phases of the lunations that touch the period, in
// order, until it returns false.
template <class Visit>
bool VisitPhases(const Period& period, std::int16_t step, const Visit& visit) {
  const std::int32_t last = LunationOf(period.end) + 1;
  for (std::int32_t lunation = LunationOf(period.begin) - 1; lunation <= last; ++lunation) {
    for (std::int16_t phase = 0; phase < kPhaseCount;
         phase = static_cast<std::int16_t>(phase + step)) {
      if (!visit(lunation, phase, FindPhaseEvent(lunation, phase))) return false;
    }
  }
  return true;
}

}  // namespace tarnwick
