#include "sky/seen_eclipses.h"

#include <algorithm>
#include <cstdint>

#include "engines/phases.h"
#include "engines/time_units.h"
#include "moon/lunation_range.h"
#include "moon/phase_cache.h"
#include "sky/eclipse_course.h"

namespace tarnwick {
namespace {

// Moments are shown and typed to the second; what lies nearer than that is the eclipse on display.
constexpr double kSameMoment = 1.0 / kSecondsPerDay;

bool IsAmong(SoughtEclipse sought, std::int16_t phase) {
  if (sought == SoughtEclipse::kAny) return true;
  return (sought == SoughtEclipse::kUmbralLunar) == (phase == kFullMoon);
}

std::optional<EclipseHere> SeeSolarEclipse(SoughtEclipse sought, const EclipseRecord& record,
                                           const Observer& observer) {
  const SolarAtPlace eclipse = SolarEclipseAtPlace(CourseOfEclipse(record), observer);
  const SolarKind least =
      sought == SoughtEclipse::kTotalSolar ? SolarKind::kTotal : SolarKind::kPartial;
  if (eclipse.kind_seen < least) return std::nullopt;
  return EclipseHere{eclipse, std::nullopt};
}

std::optional<EclipseHere> SeeLunarEclipse(SoughtEclipse sought, const EclipseRecord& record,
                                           const Observer& observer) {
  const LunarAtPlace eclipse = LunarEclipseAtPlace(record, CourseOfEclipse(record), observer);
  const EclipseType least = sought == SoughtEclipse::kUmbralLunar ? kPartialLunar : kPenumbralLunar;
  if (eclipse.type_seen < least) return std::nullopt;
  return EclipseHere{std::nullopt, eclipse};
}

// New and full moons are counted in turn, the new moon of lunation 0 as 0.
constexpr std::int64_t kFirstSyzygy = 2 * std::int64_t{kFirstLunation};
constexpr std::int64_t kLastSyzygy = 2 * std::int64_t{kLastLunation} + 1;

PhaseNumber SyzygyOf(std::int64_t number) {
  const bool full = number % 2 != 0;
  return {static_cast<std::int32_t>((number - (full ? 1 : 0)) / 2), full ? kFullMoon : kNewMoon};
}

// Those on either side of the lunation are among them: an eclipse is seen hours before or after its
// new moon.
std::int64_t FirstToLookAt(UniversalTime moment, bool forward) {
  const std::int64_t lunation = LunationOf(moment);
  return forward ? std::max(2 * lunation, kFirstSyzygy) : std::min(2 * lunation + 2, kLastSyzygy);
}

}  // namespace

std::optional<EclipseHere> SeeEclipse(SoughtEclipse sought, const EclipseRecord& record,
                                      const Observer& observer) {
  if (record.type == kNotEclipsed) return std::nullopt;
  const bool lunar = IsLunarEclipse(record.type);
  if (!IsAmong(sought, lunar ? kFullMoon : kNewMoon)) return std::nullopt;
  return lunar ? SeeLunarEclipse(sought, record, observer)
               : SeeSolarEclipse(sought, record, observer);
}

std::optional<SeenEclipse> FindSeenEclipse(SoughtEclipse sought, const Observer& observer,
                                           UniversalTime moment, bool forward,
                                           const std::function<bool()>& keep_searching) {
  const int step = forward ? 1 : -1;
  for (std::int64_t number = FirstToLookAt(moment, forward);
       number >= kFirstSyzygy && number <= kLastSyzygy; number += step) {
    const PhaseNumber at = SyzygyOf(number);
    if (!IsAmong(sought, at.phase)) continue;
    if (!keep_searching()) return std::nullopt;
    const EclipseRecord record = FindPhaseEvent(at.lunation, at.phase).eclipse;
    const std::optional<EclipseHere> here = SeeEclipse(sought, record, observer);
    if (here && step * (here->Instant() - moment) > kSameMoment) {
      return SeenEclipse{at, here->Instant()};
    }
  }
  return std::nullopt;
}

}  // namespace tarnwick
