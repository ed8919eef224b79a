// Instants and days: numbers whose types say how they are counted, so that what is counted one way
// is never taken for the other.
//
//   const UniversalTime new_moon = PhaseTime(0, kNewMoon);
//   new_moon - LunationBase()              // the difference in days
//   new_moon + 0.5                         // half a day later
//   new_moon - Syzygy(0, kNewMoon)         // does not compile: Terrestrial Time
#pragma once

#include <compare>
#include <cstdint>

namespace tarnwick {

template <class Scale>
struct Instant {
  double days = 0;  // the Julian date

  constexpr Instant() = default;
  constexpr explicit Instant(double julian_date) : days(julian_date) {}

  friend constexpr bool operator==(const Instant&, const Instant&) = default;
  friend constexpr auto operator<=>(Instant a, Instant b) { return a.days <=> b.days; }
  friend constexpr double operator-(Instant a, Instant b) { return a.days - b.days; }
  friend constexpr Instant operator+(Instant a, double days) { return Instant(a.days + days); }
  friend constexpr Instant operator-(Instant a, double days) { return Instant(a.days - days); }
};

// Astronomical Julian dates (AJD), from noon to noon at Greenwich, by the even time of the theories
// of the Moon and by the time that the Earth's rotation makes.
using TerrestrialTime = Instant<struct TerrestrialScale>;
using UniversalTime = Instant<struct UniversalScale>;

// A chronological Julian date (CJD), from midnight to midnight of the chosen time zone.
using LocalCJD = Instant<struct LocalScale>;

// The number of a day: the whole part of the CJDs within it.
struct DayNumber {
  std::int32_t value = 0;

  constexpr DayNumber() = default;
  constexpr explicit DayNumber(std::int32_t number) : value(number) {}

  friend constexpr bool operator==(const DayNumber&, const DayNumber&) = default;
  friend constexpr auto operator<=>(DayNumber a, DayNumber b) { return a.value <=> b.value; }
  friend constexpr std::int32_t operator-(DayNumber a, DayNumber b) { return a.value - b.value; }
  friend constexpr DayNumber operator+(DayNumber a, std::int32_t days) {
    return DayNumber(a.value + days);
  }
  friend constexpr DayNumber operator-(DayNumber a, std::int32_t days) {
    return DayNumber(a.value - days);
  }
};

}  // namespace tarnwick
