// The lunations of the accepted range of moments.
#pragma once

#include <cstdint>

namespace tarnwick {

inline constexpr std::int32_t kFirstLunation = -64316;
inline constexpr std::int32_t kLastLunation = 49472;

}  // namespace tarnwick
