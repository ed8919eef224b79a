// What a target looks at. Where it does not hold the process aborts, and the fuzzer keeps the
// input.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <iostream>
#include <string_view>

namespace tarnwick {

inline void Check(bool holds, std::string_view what, std::string_view detail = {}) {
  if (holds) return;
  std::cerr << "not so: " << what << ": " << detail << std::endl;
  std::abort();
}

// That two texts are alike; the detail is the first line in which they are not.
inline void CheckAlike(std::string_view first, std::string_view second, std::string_view what) {
  std::size_t line = 0;
  for (std::size_t i = 0; i < std::min(first.size(), second.size()); ++i) {
    if (first[i] != second[i]) break;
    if (second[i] == '\n') line = i + 1;
  }
  Check(first == second, what, second.substr(line, second.find('\n', line) - line));
}

}  // namespace tarnwick
