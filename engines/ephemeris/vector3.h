// Vectors in rectangular coordinates.
#pragma once

#include <cmath>

namespace tarnwick {

struct Vector3 {
  double x = 0;
  double y = 0;
  double z = 0;
};

constexpr Vector3 operator+(const Vector3& a, const Vector3& b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}

constexpr Vector3 operator-(const Vector3& a, const Vector3& b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}

constexpr Vector3 operator*(double factor, const Vector3& a) {
  return {factor * a.x, factor * a.y, factor * a.z};
}

constexpr double Dot(const Vector3& a, const Vector3& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}

constexpr Vector3 Cross(const Vector3& a, const Vector3& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline double Length(const Vector3& a) { return std::sqrt(Dot(a, a)); }

// The vector of length 1 in the direction of a, which must not be zero.
inline Vector3 Unit(const Vector3& a) { return 1 / Length(a) * a; }

// A vector and its rate a day.
struct MovingVector {
  Vector3 value;
  Vector3 rate;
};

constexpr MovingVector operator-(const MovingVector& a, const MovingVector& b) {
  return {a.value - b.value, a.rate - b.rate};
}

// The unit vector of a moving one, and how it turns.
inline MovingVector Unit(const MovingVector& a) {
  const double length = Length(a.value);
  const Vector3 unit = 1 / length * a.value;
  return {unit, 1 / length * (a.rate - Dot(a.rate, unit) * unit)};
}

}  // namespace tarnwick
