// What lists are made of, found one after another: the windows show it, the tables print it.
//
// A finder goes through a period in the order of time. Next() looks at one candidate, which takes a
// fraction of a millisecond, so that others may act between two calls; it returns whether there may
// be more. Then Found() is what the candidate gave, null if it gave nothing; it stays until the
// next call. Progress() is how much has been looked through, [0:1].
#pragma once

#include <cstdint>
#include <optional>

#include "engines/ephemeris/observer.h"
#include "engines/instant.h"
#include "engines/phase_engine.h"
#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "navigation/target.h"
#include "sky/crescent.h"
#include "sky/geo_point.h"
#include "sky/seen_eclipses.h"

namespace tarnwick {

// From `begin` (inclusive) to `end`.
struct Period {
  UniversalTime begin;
  UniversalTime end;
};

inline bool Contains(const Period& period, UniversalTime moment) {
  return moment >= period.begin && moment < period.end;
}

// How much of the period lies before a moment, [0:1].
double PartBefore(const Period& period, UniversalTime moment);

// The lunations that a period touches, one after another.
class LunationRange {
 public:
  explicit LunationRange(const Period& period);

  std::int32_t First() const { return first_; }
  std::int32_t Last() const { return last_; }
  // How many of them lie before one, as a part of all, [0:1].
  double PartBefore(std::int32_t lunation) const;

 private:
  std::int32_t first_;
  std::int32_t last_;
};

struct FoundPhase {
  PhaseNumber at;
  PhaseEvent event;
};

// Principal phases: that one, or all four.
class PhaseFinder {
 public:
  explicit PhaseFinder(const Period& period, std::optional<std::int16_t> phase = {});

  bool Next();
  const FoundPhase* Found() const { return found_ ? &*found_ : nullptr; }
  double Progress() const { return range_.PartBefore(next_.lunation); }

 private:
  Period period_;
  LunationRange range_;
  int step_;  // from a candidate to the next, in phases
  PhaseNumber next_;
  std::optional<FoundPhase> found_;
};

struct ListedEclipse {
  PhaseNumber at;
  EclipseRecord record{};
  UniversalTime greatest;
};

// Eclipses, by their greatest phase, that a target from 6 to 12 accepts (navigation/target.h).
class EclipseFinder {
 public:
  EclipseFinder(const Period& period, int target);

  bool Next();
  const ListedEclipse* Found() const { return found_ ? &*found_ : nullptr; }
  double Progress() const { return range_.PartBefore(next_.lunation); }

 private:
  void LookAt(const PhaseNumber& at);

  Period period_;
  LunationRange range_;
  int target_;
  PhaseNumber next_;
  std::optional<ListedEclipse> found_;
};

struct ListedSeenEclipse {
  ListedEclipse eclipse;
  EclipseHere here;
};

// Eclipses, by their greatest phase, that are seen at a place as what they are sought for.
class SeenEclipseFinder {
 public:
  SeenEclipseFinder(const Period& period, const GeoPoint& place, SoughtEclipse sought);

  bool Next();
  const ListedSeenEclipse* Found() const { return found_ ? &*found_ : nullptr; }
  double Progress() const { return eclipses_.Progress(); }

 private:
  EclipseFinder eclipses_;
  Observer observer_;
  SoughtEclipse sought_;
  std::optional<ListedSeenEclipse> found_;
};

// The crescents about a new moon.
struct FoundCrescents {
  std::int32_t lunation = 0;  // that begins with it
  UniversalTime new_moon;
  Crescents mornings;
  Crescents evenings;
};

FoundCrescents CrescentsAbout(std::int32_t lunation, const Observer& observer);

class CrescentFinder {
 public:
  CrescentFinder(const Period& period, const GeoPoint& place);

  bool Next();
  const FoundCrescents* Found() const { return found_ ? &*found_ : nullptr; }
  double Progress() const { return new_moons_.Progress(); }

 private:
  PhaseFinder new_moons_;
  Observer observer_;
  std::optional<FoundCrescents> found_;
};

// Days on which four calendars begin a month together.
class CoincidenceFinder {
 public:
  // The days whose noon lies in the period, at so many minutes east of Greenwich.
  CoincidenceFinder(const Period& period, int offset_minutes);

  bool Next();
  const DayNumber* Found() const { return found_ ? &*found_ : nullptr; }
  double Progress() const;

 private:
  MonthFirsts next_;
  Period period_;
  int offset_minutes_;
  std::optional<DayNumber> found_;
};

}  // namespace tarnwick
