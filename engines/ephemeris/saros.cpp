#include "engines/ephemeris/saros.h"

#include <cmath>

#include "engines/floor_division.h"

namespace tarnwick {
namespace {

constexpr std::int32_t kLunationsPerSaros = 223;
constexpr double kLunationsPerInex = 358;

// 38 is the inverse of 358 modulo 223: an inex later the number is one more, a saros later the
// same.
std::int32_t Saros(std::int32_t lunation, std::int32_t c, std::int32_t b) {
  const auto residue = FloorModulo(38 * (std::int64_t{lunation} - c), kLunationsPerSaros);
  const double near = lunation / kLunationsPerInex + b;
  const double turns = std::round((near - static_cast<double>(residue)) / kLunationsPerSaros);
  return static_cast<std::int32_t>(residue + kLunationsPerSaros * static_cast<std::int64_t>(turns));
}

}  // namespace

std::int32_t SolarSaros(std::int32_t lunation) { return Saros(lunation, 44, 140); }
std::int32_t LunarSaros(std::int32_t lunation) { return Saros(lunation, 208, 133); }

}  // namespace tarnwick
