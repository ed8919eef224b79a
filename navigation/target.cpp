#include "navigation/target.h"

#include <cstddef>
#include <initializer_list>

#include "calendars/day_date.h"
#include "engines/checked_arithmetic.h"
#include "engines/phases.h"
#include "moon/phase_cache.h"

namespace tarnwick {
namespace {

// A set of eclipse types, a bit each.
using EclipseTypes = std::uint32_t;

constexpr EclipseTypes TypeSet(std::initializer_list<EclipseType> types) {
  EclipseTypes set = 0;
  for (const EclipseType type : types) set |= EclipseTypes{1} << type;
  return set;
}

constexpr EclipseTypes kBothTypes =
    TypeSet({kCentralAnnularTotalSolar, kNonCentralAnnularTotalSolar});
constexpr EclipseTypes kTotalTypes =
    TypeSet({kCentralTotalSolar, kNonCentralTotalSolar}) | kBothTypes;
constexpr EclipseTypes kAnnularTypes =
    TypeSet({kCentralAnnularSolar, kNonCentralAnnularSolar}) | kBothTypes;
constexpr EclipseTypes kSolarTypes = TypeSet({kPartialSolar}) | kTotalTypes | kAnnularTypes;
constexpr EclipseTypes kUmbralTypes = TypeSet({kPartialLunar, kTotalLunar});
constexpr EclipseTypes kLunarTypes = TypeSet({kPenumbralLunar}) | kUmbralTypes;

// What the targets from kAnyEclipseTarget on accept. Annular-total eclipses are both.
constexpr std::array<EclipseTypes, 7> kAcceptedTypes{
    kSolarTypes | kLunarTypes,
    kLunarTypes,
    TypeSet({kTotalLunar}),
    kUmbralTypes,
    kSolarTypes,
    kTotalTypes,
    kAnnularTypes,
};

EclipseTypes AcceptedTypes(int target) {
  const int row = target - kAnyEclipseTarget;
  if (row < 0 || row >= static_cast<int>(kAcceptedTypes.size())) return 0;
  return kAcceptedTypes[static_cast<std::size_t>(row)];
}

PhaseNumber FindQuarter(bool forward, const MomentPhase& from) {
  PhaseNumber at = from.at;
  if (!forward && !from.exact) return at;
  at.phase = static_cast<std::int16_t>(at.phase + (forward ? 1 : -1));
  if (at.phase > kLastQuarter) return {CheckedAdd(at.lunation, 1), kNewMoon};
  if (at.phase < kNewMoon) return {CheckedSubtract(at.lunation, 1), kLastQuarter};
  return at;
}

// The new or full moon next to one.
PhaseNumber NeighbourSyzygy(const PhaseNumber& syzygy, bool forward) {
  if (syzygy.phase == kNewMoon) {
    return {forward ? syzygy.lunation : CheckedSubtract(syzygy.lunation, 1), kFullMoon};
  }
  return {forward ? CheckedAdd(syzygy.lunation, 1) : syzygy.lunation, kNewMoon};
}

// The first new or full moon that a search comes to: the next, or the last one.
PhaseNumber FirstSyzygy(const PhaseNumber& at, bool forward) {
  const PhaseNumber last{at.lunation, at.phase < kFullMoon ? kNewMoon : kFullMoon};
  return forward ? NeighbourSyzygy(last, true) : last;
}

// The first of the SD month before, or after, in which a search from a day begins.
SDDate FirstSDMonth(DayNumber day_number, bool forward) {
  SDDate date = DateOfDay<SDDate>(day_number);
  const bool at_first = date.day == 1;
  date.day = 1;
  if (forward || at_first) StepSDMonth(date, forward);
  return date;
}

bool IsFirstOfARCMonth(DayNumber day_number) { return DateOfDay<ARCDate>(day_number).day == 1; }

bool IsFirstOfLLTMonth(DayNumber day_number) {
  const LLTDate date = DateOfDay<LLTDate>(day_number);
  return date.triday == 1 && date.day == 1;
}

bool IsFirstOfKSGMonth(DayNumber day_number) { return DateOfDay<KSGDate>(day_number).day == 1; }

}  // namespace

constexpr std::array<TargetRow, kTargetCount> kTargets{{
    {"Full moon", kFullMoon},
    {"Dark moon", kNewMoon},
    {"Half moon (1st quarter)", kFirstQuarter},
    {"Half moon (last quarter)", kLastQuarter},
    {"Quarter"},
    {""},
    {"Lunar or solar eclipse"},
    {"Lunar eclipse"},
    {"Total lunar eclipse"},
    {"Total or partial lunar eclipse"},
    {"Solar eclipse"},
    {"Total solar eclipse"},
    {"Annular solar eclipse"},
    {"Eclipse in same saros series"},
    {""},
    {"Coincidence of 1sts of month"},
}};

PhaseNumber FindPhase(int target, bool forward, const MomentPhase& from) {
  if (target == kQuarterTarget) return FindQuarter(forward, from);
  const PhaseNumber& at = from.at;
  const std::int16_t phase = kTargets[static_cast<std::size_t>(target)].phase;
  if (forward) return {at.phase >= phase ? CheckedAdd(at.lunation, 1) : at.lunation, phase};
  const bool before = phase > at.phase || (phase == at.phase && from.exact);
  return {before ? CheckedSubtract(at.lunation, 1) : at.lunation, phase};
}

bool AcceptsEclipse(int target, std::int32_t type) {
  const bool eclipse = IsSolarEclipse(type) || IsLunarEclipse(type);
  return eclipse && (AcceptedTypes(target) >> type & 1) != 0;
}

bool AcceptsPhase(int target, std::int16_t phase) {
  return (AcceptedTypes(target) & (phase == kNewMoon ? kSolarTypes : kLunarTypes)) != 0;
}

std::optional<FoundEclipse> FindEclipse(int target, bool forward, const PhaseNumber& at,
                                        const std::function<bool(const FoundEclipse&)>& wanted,
                                        const KeepSearching& keep_searching) {
  FoundEclipse found{FirstSyzygy(at, forward)};
  for (;; found.at = NeighbourSyzygy(found.at, forward)) {
    if (!AcceptsPhase(target, found.at.phase)) continue;
    if (!keep_searching()) return std::nullopt;
    found.record = FindPhaseEvent(found.at.lunation, found.at.phase).eclipse;
    if (AcceptsEclipse(target, found.record.type) && wanted(found)) return found;
  }
}

MonthFirsts::MonthFirsts(DayNumber day_number, bool forward)
    : date_(FirstSDMonth(day_number, forward)), forward_(forward), valid_(SDDateToJDN(date_)) {}

std::optional<DayNumber> MonthFirsts::Day() const {
  return valid_ ? std::optional(DayNumber(date_.jdn)) : std::nullopt;
}

void MonthFirsts::Step() {
  StepSDMonth(date_, forward_);
  valid_ = SDDateToJDN(date_);
}

bool IsCoincidenceOf1sts(DayNumber day_number) {
  return IsFirstOfARCMonth(day_number) && IsFirstOfLLTMonth(day_number) &&
         IsFirstOfKSGMonth(day_number);
}

std::optional<DayNumber> FindCoincidence(DayNumber day_number, bool forward,
                                         const KeepSearching& keep_searching) {
  for (MonthFirsts first(day_number, forward); first.Day(); first.Step()) {
    if (!keep_searching()) return std::nullopt;
    if (IsCoincidenceOf1sts(*first.Day())) return first.Day();
  }
  return std::nullopt;
}

}  // namespace tarnwick
