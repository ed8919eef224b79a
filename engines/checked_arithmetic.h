// Calendar arithmetic in which an overflow is an error, never a wrap-around.
//
//   CheckedAdd<std::int32_t>(year, 1)   // throws RuntimeError("Overflow") at the largest year
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace tarnwick {

// What goes wrong while the program runs a calendar; what() is the description shown to the user.
class RuntimeError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

[[noreturn]] inline void ThrowOverflow() { throw RuntimeError("Overflow"); }

// The value in the narrower type T; throws RuntimeError when it does not fit.
template <typename T>
constexpr T CheckedNarrow(std::int64_t value) {
  static_assert(std::is_integral_v<T> && sizeof(T) <= 4, "for 16-bit and 32-bit fields");
  if (!std::in_range<T>(value)) ThrowOverflow();
  return static_cast<T>(value);
}

// The largest whole number not above the value; throws RuntimeError when it does not fit T, which
// includes infinities and NaN.
template <typename T>
T CheckedFloor(double value) {
  static_assert(std::is_integral_v<T> && sizeof(T) <= 4, "every bound is exact as a double");
  const double whole = std::floor(value);
  const bool fits = whole >= static_cast<double>(std::numeric_limits<T>::min()) &&
                    whole <= static_cast<double>(std::numeric_limits<T>::max());
  if (!fits) ThrowOverflow();
  return static_cast<T>(whole);
}

// Sum, difference and product in T; they throw RuntimeError when the result does not fit T.
template <typename T>
constexpr T CheckedAdd(T a, std::type_identity_t<T> b) {
  return CheckedNarrow<T>(std::int64_t{a} + b);
}

template <typename T>
constexpr T CheckedSubtract(T a, std::type_identity_t<T> b) {
  return CheckedNarrow<T>(std::int64_t{a} - b);
}

template <typename T>
constexpr T CheckedMultiply(T a, std::type_identity_t<T> b) {
  return CheckedNarrow<T>(std::int64_t{a} * b);
}

}  // namespace tarnwick
