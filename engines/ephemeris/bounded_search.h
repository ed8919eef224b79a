// Roots and minima of smooth functions of one variable, in a number of steps that has a bound.
#pragma once

#include <algorithm>
#include <cmath>

namespace tarnwick {

// A root of f between `inside`, where f is not positive, and `outside`, where it is, found when a
// step falls below `fine_step` in the unit of the variable. Should f not be positive at `outside`,
// the answer is `outside`. Regula falsi; the Illinois rule (halving the value at an end that stays)
// keeps both ends moving.
template <class Function>
double RootBetween(const Function& f, double inside, double outside, double fine_step = 1e-11) {
  double f_inside = std::min(f(inside), 0.0);
  double f_outside = f(outside);
  if (f_outside <= 0) return outside;
  double root = inside;
  bool moved_inside = false;
  for (int i = 0; i < 60; ++i) {
    const double last = root;
    root = outside - f_outside * (outside - inside) / (f_outside - f_inside);
    const double value = f(root);
    if (value == 0 || std::abs(root - last) < fine_step) break;
    const bool moves_inside = value < 0;
    const bool stays = i > 0 && moves_inside == moved_inside;
    if (moves_inside) {
      inside = root;
      f_inside = value;
      if (stays) f_outside /= 2;
    } else {
      outside = root;
      f_outside = value;
      if (stays) f_inside /= 2;
    }
    moved_inside = moves_inside;
  }
  return root;
}

// Where f, which has one minimum between a and b, is least: golden section, until the interval is
// 1e-8 of its first width (finer than that the values of a smooth function no longer differ).
template <class Function>
double MinimumBetween(const Function& f, double a, double b) {
  constexpr double kGolden = 0.61803398874989485;
  double left = b - kGolden * (b - a);
  double right = a + kGolden * (b - a);
  double f_left = f(left);
  double f_right = f(right);
  for (int i = 0; i < 38; ++i) {
    if (f_left < f_right) {
      b = right;
      right = left;
      f_right = f_left;
      left = b - kGolden * (b - a);
      f_left = f(left);
    } else {
      a = left;
      left = right;
      f_left = f_right;
      right = a + kGolden * (b - a);
      f_right = f(right);
    }
  }
  return (a + b) / 2;
}

}  // namespace tarnwick
