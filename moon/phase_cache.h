// The principal phases, kept once they are computed: an eclipse takes some 5 us, a look-up 3 ns,
// and display and searches ask for the same ones again and again.
#pragma once

#include <cstdint>

#include "engines/instant.h"
#include "engines/phase_engine.h"

namespace tarnwick {

// A principal phase as the phase engine has found it.
struct PhaseEvent {
  TerrestrialTime tt;       // its instant
  UniversalTime ut;         // and in Universal Time
  EclipseRecord eclipse{};  // the eclipse at it
};

// The event of a lunation and phase, from a bounded store of those asked for last. It is what the
// engine answers, whether it was stored or not.
PhaseEvent FindPhaseEvent(std::int32_t lunation, std::int16_t phase);

// Forgets everything stored.
void ClearPhaseCache();

}  // namespace tarnwick
