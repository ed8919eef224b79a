// The keys that forms look for: as the characters they stand for, and by name.
#pragma once

#include <string_view>

namespace tarnwick {

inline constexpr int kEnterKey = 13;
inline constexpr int kEscapeKey = 27;

inline constexpr std::string_view kEnterName = "Return";
inline constexpr std::string_view kEscapeName = "Escape";

}  // namespace tarnwick
