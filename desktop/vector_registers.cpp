#include "desktop/vector_registers.h"

namespace tarnwick {

#if defined(__x86_64__) && defined(__GNUC__)

namespace {

__attribute__((target("avx"))) void ClearUpperHalves() { __builtin_ia32_vzeroupper(); }

}  // namespace

void ClearVectorRegisters() {
  static const bool has_upper_halves = __builtin_cpu_supports("avx") != 0;
  if (has_upper_halves) ClearUpperHalves();
}

#else

void ClearVectorRegisters() {}

#endif

}  // namespace tarnwick
