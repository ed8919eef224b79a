// The kinds of eclipses, by their numbers in the eclipse record.
#pragma once

#include <cstdint>

namespace tarnwick {

enum EclipseType : std::int32_t {
  kNotEclipsed = 0,
  kPartialSolar = 1,
  kCentralAnnularSolar = 2,
  kCentralTotalSolar = 3,
  kNonCentralTotalSolar = 4,
  kNonCentralAnnularSolar = 5,
  kCentralAnnularTotalSolar = 6,
  kNonCentralAnnularTotalSolar = 7,
  kPenumbralLunar = 8,
  kPartialLunar = 9,
  kTotalLunar = 10
};

constexpr bool IsSolarEclipse(std::int32_t type) {
  return type >= kPartialSolar && type <= kNonCentralAnnularTotalSolar;
}

constexpr bool IsLunarEclipse(std::int32_t type) {
  return type >= kPenumbralLunar && type <= kTotalLunar;
}

}  // namespace tarnwick
