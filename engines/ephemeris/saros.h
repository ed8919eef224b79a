// Saros numbers.
#pragma once

#include <cstdint>

namespace tarnwick {

// The saros series of the solar eclipse at the new moon, and of the lunar eclipse at the full moon,
// of a lunation (0 begins on 2000 January 6). A saros is 223 lunations, and from one series to the
// next it is 358 lunations on the average, an inex; so the number S solves
// S = 38 (n - c) (mod 223) and lies nearest to n / 358 + b. The numbers are van den Bergh's (1955):
// they reproduce the published ones of all eclipses from -1999 to 3000.
std::int32_t SolarSaros(std::int32_t lunation);
std::int32_t LunarSaros(std::int32_t lunation);

}  // namespace tarnwick
