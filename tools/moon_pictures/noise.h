// Randomness that is the same in every run: functions of a place, between 0 and 1.
#pragma once

#include <cstdint>

namespace tarnwick {

struct Vector {
  double x = 0;
  double y = 0;
  double z = 0;

  friend Vector operator+(Vector a, Vector b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
  friend Vector operator-(Vector a, Vector b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
  friend Vector operator*(Vector a, double factor) {
    return {a.x * factor, a.y * factor, a.z * factor};
  }
};

double Dot(Vector a, Vector b);
double Length(Vector a);

// A number for a point of a grid; `salt` tells one use from another.
double HashNoise(std::int32_t x, std::int32_t y, std::int32_t z, std::uint32_t salt);

// Smooth, with features about 1 wide; and the sum of `octaves` of it, each twice as fine and half
// as strong as the one before.
double SmoothNoise(Vector at, std::uint32_t salt);
double FractalNoise(Vector at, int octaves, std::uint32_t salt);

}  // namespace tarnwick
