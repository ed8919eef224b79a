// Lists of names.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarnwick {

// The name with that number; the list begins with number `first`. Empty for a number that has none.
template <std::size_t count>
constexpr std::string_view NameOf(const std::array<std::string_view, count>& names,
                                  std::int32_t number, std::int32_t first = 1) {
  const std::int64_t place = std::int64_t{number} - first;
  if (place < 0 || place >= static_cast<std::int64_t>(count)) return "";
  return names[static_cast<std::size_t>(place)];
}

}  // namespace tarnwick
