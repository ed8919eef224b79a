// Division that rounds down, so that counts run on evenly through zero and below.
#pragma once

#include <cstdint>

namespace tarnwick {

// The quotient rounded down; b must be positive. FloorDivide(-1, 7) is -1.
constexpr std::int64_t FloorDivide(std::int64_t a, std::int64_t b) {
  return a / b - (a % b < 0 ? 1 : 0);
}

// The remainder that belongs to it, [0:b-1]. FloorModulo(-1, 7) is 6.
constexpr std::int64_t FloorModulo(std::int64_t a, std::int64_t b) {
  const std::int64_t remainder = a % b;
  return remainder < 0 ? remainder + b : remainder;
}

}  // namespace tarnwick
