// Randomness that is the same in every run: functions of a place, between 0 and 1.
#pragma once

#include <cstdint>

#include "engines/ephemeris/vector3.h"

namespace tarnwick {

// A number for a point of a grid; `salt` tells one use from another.
double HashNoise(std::int32_t x, std::int32_t y, std::int32_t z, std::uint32_t salt);

// Smooth, with features about 1 wide; and the sum of `octaves` of it, each twice as fine and half
// as strong as the one before.
double SmoothNoise(Vector3 at, std::uint32_t salt);
double FractalNoise(Vector3 at, int octaves, std::uint32_t salt);

}  // namespace tarnwick
