// What a target looks at. Where it does not hold the process aborts, and the fuzzer keeps the
// input.
#pragma once

#include <cstdlib>
#include <iostream>
#include <string_view>

namespace tarnwick {

inline void Check(bool holds, std::string_view what, std::string_view detail = {}) {
  if (holds) return;
  std::cerr << "not so: " << what << ": " << detail << std::endl;
  std::abort();
}

}  // namespace tarnwick
