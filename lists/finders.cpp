#include "lists/finders.h"

#include <algorithm>

#include "calendars/date_processing.h"
#include "engines/phases.h"

namespace tarnwick {
namespace {

void StepPhase(PhaseNumber& at, int step) {
  at.phase = static_cast<std::int16_t>(at.phase + step);
  if (at.phase < kPhaseCount) return;
  at.phase = static_cast<std::int16_t>(at.phase - kPhaseCount);
  ++at.lunation;
}

// The target that accepts all that may be sought, and little else.
int TargetOf(SoughtEclipse sought) {
  switch (sought) {
    case SoughtEclipse::kSolar:
      return kSolarEclipseTarget;
    case SoughtEclipse::kTotalSolar:
      return kTotalSolarTarget;
    case SoughtEclipse::kUmbralLunar:
      return kUmbralLunarTarget;
    case SoughtEclipse::kAny:
      break;
  }
  return kAnyEclipseTarget;
}

}  // namespace

double PartBefore(const Period& period, UniversalTime moment) {
  return std::clamp((moment - period.begin) / (period.end - period.begin), 0.0, 1.0);
}

// Delta T and the course of an eclipse may take an instant into the next lunation.
LunationRange::LunationRange(const Period& period)
    : first_(LunationOf(period.begin) - 1), last_(LunationOf(period.end) + 1) {}

double LunationRange::PartBefore(std::int32_t lunation) const {
  const double part = static_cast<double>(lunation - first_) / (last_ - first_ + 1);
  return std::clamp(part, 0.0, 1.0);
}

PhaseFinder::PhaseFinder(const Period& period, std::optional<std::int16_t> phase)
    : period_(period),
      range_(period),
      step_(phase ? kPhaseCount : 1),
      next_{range_.First(), phase.value_or(kNewMoon)} {}

bool PhaseFinder::Next() {
  found_.reset();
  if (next_.lunation > range_.Last()) return false;
  const PhaseEvent event = FindPhaseEvent(next_.lunation, next_.phase);
  if (Contains(period_, event.ut)) found_ = FoundPhase{next_, event};
  StepPhase(next_, step_);
  return event.ut < period_.end;
}

EclipseFinder::EclipseFinder(const Period& period, int target)
    : period_(period), range_(period), target_(target), next_{range_.First(), kNewMoon} {}

bool EclipseFinder::Next() {
  constexpr int kToNextSyzygy = kFullMoon - kNewMoon;
  found_.reset();
  if (next_.lunation > range_.Last()) return false;
  if (AcceptsPhase(target_, next_.phase)) LookAt(next_);
  StepPhase(next_, kToNextSyzygy);
  return true;
}

void EclipseFinder::LookAt(const PhaseNumber& at) {
  const EclipseRecord record = FindPhaseEvent(at.lunation, at.phase).eclipse;
  if (!AcceptsEclipse(target_, record.type)) return;
  const UniversalTime greatest = GreatestEclipse(record);
  if (Contains(period_, greatest)) found_ = ListedEclipse{at, record, greatest};
}

SeenEclipseFinder::SeenEclipseFinder(const Period& period, const GeoPoint& place,
                                     SoughtEclipse sought)
    : eclipses_(period, TargetOf(sought)), observer_(ObserverAt(place)), sought_(sought) {}

bool SeenEclipseFinder::Next() {
  found_.reset();
  if (!eclipses_.Next()) return false;
  if (const ListedEclipse* eclipse = eclipses_.Found()) {
    const auto here = SeeEclipse(sought_, eclipse->record, observer_);
    if (here) found_ = ListedSeenEclipse{*eclipse, *here};
  }
  return true;
}

FoundCrescents CrescentsAbout(std::int32_t lunation, const Observer& observer) {
  const UniversalTime new_moon = FindPhaseEvent(lunation, kNewMoon).ut;
  const double delta_t = DeltaTDays(new_moon);
  return {lunation, new_moon, MorningsBefore(lunation, observer, delta_t),
          EveningsAfter(lunation, observer, delta_t)};
}

CrescentFinder::CrescentFinder(const Period& period, const GeoPoint& place)
    : new_moons_(period, kNewMoon), observer_(ObserverAt(place)) {}

bool CrescentFinder::Next() {
  found_.reset();
  if (!new_moons_.Next()) return false;
  if (const FoundPhase* new_moon = new_moons_.Found()) {
    found_ = CrescentsAbout(new_moon->at.lunation, observer_);
  }
  return true;
}

CoincidenceFinder::CoincidenceFinder(const Period& period, int offset_minutes)
    : next_(DayOf(period.begin, offset_minutes) - 1, true),
      period_(period),
      offset_minutes_(offset_minutes) {}

double CoincidenceFinder::Progress() const {
  const std::optional<DayNumber> day = next_.Day();
  return day ? PartBefore(period_, NoonOf(*day, offset_minutes_)) : 1;
}

bool CoincidenceFinder::Next() {
  found_.reset();
  const std::optional<DayNumber> day = next_.Day();
  if (!day || NoonOf(*day, offset_minutes_) >= period_.end) return false;
  const bool inside = NoonOf(*day, offset_minutes_) >= period_.begin;
  if (inside && IsCoincidenceOf1sts(*day)) found_ = day;
  next_.Step();
  return true;
}

}  // namespace tarnwick
