// The first and the last crescent of a lunation after Yallop.
//
// Each of the first three evenings after a conjunction has its sunset and the moonset nearest to
// it; the best time to look is 4/9 of the lag of the moonset after the sunset. At that time the arc
// of vision (how much higher the Moon stands than the Sun, seen from the Earth's centre) and the
// width of the crescent make q, and q the class:
//   A  q > 0.216   easily visible
//   B  q > -0.014  visible under perfect conditions
//   C  q > -0.160  may need optical aid to find the crescent
//   D  q > -0.232  will need optical aid
//   E  q > -0.293  not visible with a telescope
//   F              not visible, below the limit
// Mornings before a conjunction likewise, with sunrise and moonrise.
//
// Source: B. D. Yallop, HM Nautical Almanac Office, Technical Note 69 (1997). Against JPL DE431 q
// is good to 0.0001 over the whole range of the series.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "engines/ephemeris/observer.h"
#include "engines/instant.h"

namespace tarnwick {

// Sun and Moon at the best time; radians.
struct CrescentQuantities {
  UniversalTime best;
  double arcl = 0;   // angle between Sun and Moon, from the Earth's centre
  double arcv = 0;   // altitude of the Moon less that of the Sun, from the Earth's centre
  double daz = 0;    // azimuth of the Sun less that of the Moon, in [-pi, pi]
  double width = 0;  // of the crescent, from the place, arcminutes: Yallop's W'
  double q = 0;
};

// What an evening, or a morning, shows.
struct Crescent {
  std::optional<UniversalTime> sun;              // sunset or sunrise
  std::optional<UniversalTime> moon;             // moonset or moonrise within 12 hours of it
  std::optional<CrescentQuantities> quantities;  // where the Moon sets later, or rises earlier

  // 'A' to 'F'; none where Sun or Moon does not set, or rise.
  std::optional<char> Class() const;
};

// What a class means: "easily visible".
std::string_view CrescentClassText(char visibility);

// By their distance from the conjunction, the nearest first. What does not happen within 4.3 days
// of the conjunction is empty.
using Crescents = std::array<Crescent, 3>;

// The first evenings after the new moon that begins a lunation, and the last mornings before it.
// `delta_t` is Terrestrial less Universal Time, in days.
Crescents EveningsAfter(std::int32_t lunation, const Observer& observer, double delta_t);
Crescents MorningsBefore(std::int32_t lunation, const Observer& observer, double delta_t);

// Which of them are named, by their indexes: the one nearest to the conjunction of class A or B,
// which can be seen without a telescope, and the nearest of class C if it is nearer still.
struct NamedCrescents {
  std::optional<std::size_t> seen;
  std::optional<std::size_t> maybe_seen;
};
NamedCrescents NameCrescents(const Crescents& crescents);
// The one that is told where there is room for one only: of class A or B or, where there is none,
// of class C.
std::optional<std::size_t> TellingCrescent(const Crescents& crescents);

}  // namespace tarnwick
