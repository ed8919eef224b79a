// The keys that forms look for, as the characters they stand for.
#pragma once

namespace tarnwick {

inline constexpr int kEnterKey = 13;
inline constexpr int kEscapeKey = 27;

}  // namespace tarnwick
