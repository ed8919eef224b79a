// Steps through years that are counted within cycles.
#pragma once

#include <cstdint>
#include <type_traits>

#include "engines/checked_arithmetic.h"

namespace tarnwick {

// The year after, or before, a year of a cycle of `cycle_years` years: the last year is followed by
// year 1 of the next cycle. Throws RuntimeError, changing nothing, where the numbers end.
template <typename Year>
void StepYearOfCycle(std::int32_t& cycle, Year& year, std::type_identity_t<Year> cycle_years,
                     bool forward) {
  const std::int16_t step = forward ? 1 : -1;
  const Year next = CheckedAdd(year, step);
  if (forward ? next > cycle_years : next < 1) {
    cycle = CheckedAdd(cycle, step);
    year = forward ? Year{1} : cycle_years;
  } else {
    year = next;
  }
}

}  // namespace tarnwick
