// Draws the Moon at a phase: a square picture, pixels 0xffRRGGBB row by row from the top.
#pragma once

#include <cstdint>
#include <vector>

#include "moon/moon_picture.h"

namespace tarnwick {

std::vector<std::uint32_t> DrawMoon(int width, MoonPhase phase);

}  // namespace tarnwick
