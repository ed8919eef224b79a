// All bytes of a record, unused ones too, for comparison.
#pragma once

#include <array>
#include <bit>
#include <cstddef>

#include "engines/phase_engine.h"

namespace tarnwick {

inline std::array<std::byte, sizeof(EclipseRecord)> BytesOf(const EclipseRecord& record) {
  return std::bit_cast<std::array<std::byte, sizeof(EclipseRecord)>>(record);
}

}  // namespace tarnwick
