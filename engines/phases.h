// The principal phases of the Moon, by the index that the engine and the program give them.
#pragma once

#include <cstdint>

namespace tarnwick {

inline constexpr std::int16_t kNewMoon = 0;
inline constexpr std::int16_t kFirstQuarter = 1;
inline constexpr std::int16_t kFullMoon = 2;
inline constexpr std::int16_t kLastQuarter = 3;
inline constexpr std::int16_t kPhaseCount = 4;

// Whether Sun, Earth and Moon stand in a line, so that there can be an eclipse.
constexpr bool IsSyzygy(std::int32_t phase) { return phase == kNewMoon || phase == kFullMoon; }

// Whether the Moon grows from this phase to the next.
constexpr bool IsWaxing(std::int32_t phase) { return phase < kFullMoon; }

}  // namespace tarnwick
