#include "tools/moon_pictures/noise.h"

#include <cmath>
#include <initializer_list>

namespace tarnwick {
namespace {

std::uint32_t Mix(std::uint32_t value) {
  value = (value ^ (value >> 16U)) * 0x7feb352dU;
  value = (value ^ (value >> 15U)) * 0x846ca68bU;
  return value ^ (value >> 16U);
}

// Turned about an oblique axis, so that the grids of several octaves do not show.
Vector3 Turned(Vector3 at) {
  return {0.36 * at.x + 0.48 * at.y - 0.80 * at.z, -0.80 * at.x + 0.60 * at.y,
          0.48 * at.x + 0.64 * at.y + 0.60 * at.z};
}

double Ease(double t) { return t * t * (3 - 2 * t); }

}  // namespace

double HashNoise(std::int32_t x, std::int32_t y, std::int32_t z, std::uint32_t salt) {
  std::uint32_t hash = Mix(salt + 0x9e3779b9U);
  for (const std::int32_t part : {x, y, z}) hash = Mix(hash ^ static_cast<std::uint32_t>(part));
  return hash / 4294967295.0;
}

double SmoothNoise(Vector3 at, std::uint32_t salt) {
  const Vector3 floor{std::floor(at.x), std::floor(at.y), std::floor(at.z)};
  const Vector3 t{Ease(at.x - floor.x), Ease(at.y - floor.y), Ease(at.z - floor.z)};
  const auto x = static_cast<std::int32_t>(floor.x);
  const auto y = static_cast<std::int32_t>(floor.y);
  const auto z = static_cast<std::int32_t>(floor.z);
  const auto along_x = [&](int j, int k) {
    return std::lerp(HashNoise(x, y + j, z + k, salt), HashNoise(x + 1, y + j, z + k, salt), t.x);
  };
  const auto plane = [&](int k) { return std::lerp(along_x(0, k), along_x(1, k), t.y); };
  return std::lerp(plane(0), plane(1), t.z);
}

double FractalNoise(Vector3 at, int octaves, std::uint32_t salt) {
  double sum = 0;
  double weight = 0;
  double strength = 1;
  for (int i = 0; i < octaves; ++i, strength /= 2) {
    sum += strength * SmoothNoise(at, salt + static_cast<std::uint32_t>(i));
    weight += strength;
    at = 2 * Turned(at);
  }
  return sum / weight;
}

}  // namespace tarnwick
