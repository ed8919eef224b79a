#include "moon/phase_cache.h"

#include <array>
#include <cstddef>

#include "moon/syzyg.h"

namespace tarnwick {
namespace {

// An event has one place by its number, so those of some 250 lunations on end stand side by side.
constexpr std::size_t kPlaces = 1024;

struct Place {
  bool used = false;
  std::int32_t lunation = 0;
  std::int16_t phase = 0;
  PhaseEvent event;
};

std::array<Place, kPlaces>& Places() {
  static std::array<Place, kPlaces> places;
  return places;
}

PhaseEvent NewEvent(std::int32_t lunation, std::int16_t phase) {
  PhaseEvent event;
  event.tt = TerrestrialTime(syzyg(lunation, phase, event.eclipse));
  event.ut = ToUniversalTime(event.tt);
  return event;
}

}  // namespace

PhaseEvent FindPhaseEvent(std::int32_t lunation, std::int16_t phase) {
  const std::size_t number =
      static_cast<std::uint32_t>(lunation) * std::size_t{4} + static_cast<std::uint16_t>(phase);
  Place& place = Places()[number % kPlaces];
  if (!place.used || place.lunation != lunation || place.phase != phase) {
    place = {true, lunation, phase, NewEvent(lunation, phase)};
  }
  return place.event;
}

void ClearPhaseCache() { Places().fill(Place()); }

}  // namespace tarnwick
