// How units of time measure each other, and the epoch that astronomy counts from.
#pragma once

#include <cstdint>

namespace tarnwick {

inline constexpr std::int32_t kHoursPerDay = 24;
inline constexpr std::int32_t kMinutesPerHour = 60;
inline constexpr std::int32_t kMinutesPerDay = kHoursPerDay * kMinutesPerHour;
inline constexpr std::int32_t kSecondsPerMinute = 60;
inline constexpr std::int32_t kSecondsPerHour = kMinutesPerHour * kSecondsPerMinute;
inline constexpr std::int32_t kSecondsPerDay = kMinutesPerDay * kSecondsPerMinute;
inline constexpr double kDaysPerCentury = 36525;  // Julian

// The epoch J2000, noon of 2000 January 1, as an AJD. It is also the day number of that day.
inline constexpr double kJ2000 = 2451545;

}  // namespace tarnwick
