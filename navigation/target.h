// What can be searched for, and where it lies.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "calendars/solilunar.h"
#include "engines/instant.h"
#include "engines/phase_engine.h"
#include "moon/syzyg.h"

namespace tarnwick {

// The rows of the list of targets.
enum Target : int {
  kFullMoonTarget = 0,
  kQuarterTarget = 4,  // any of the four phases
  kFirstBlankTarget = 5,
  kAnyEclipseTarget = 6,
  kLunarEclipseTarget = 7,
  kUmbralLunarTarget = 9,
  kSolarEclipseTarget = 10,
  kTotalSolarTarget = 11,
  kSameSarosTarget = 13,
  kSecondBlankTarget = 14,
  kCoincidenceTarget = 15,
};

struct TargetRow {
  std::string_view text;
  std::int16_t phase = 0;  // the phase that rows 0 to 3 search, else 0
};
inline constexpr int kTargetCount = 16;
extern const std::array<TargetRow, kTargetCount> kTargets;

// Where a moment stands: the last principal phase at or before it, and whether it is the instant of
// that phase itself.
struct MomentPhase {
  PhaseNumber at;
  bool exact = false;
};

// The next or previous phase that target 0 to 4 names, from a moment.
PhaseNumber FindPhase(int target, bool forward, const MomentPhase& from);

// Whether a target from 6 to 12 accepts an eclipse of that type.
bool AcceptsEclipse(int target, std::int32_t type);

// Whether it accepts any eclipse at all at that phase, a new or a full moon.
bool AcceptsPhase(int target, std::int16_t phase);

struct FoundEclipse {
  PhaseNumber at;
  EclipseRecord record{};
};

// Asked once for each candidate; false gives the search up.
using KeepSearching = std::function<bool()>;

// The next or previous eclipse that target 6 to 12 accepts and `wanted` does not refuse, from a
// moment in phase `at`. The loop has no bound but `keep_searching`: eclipses go on for ever.
std::optional<FoundEclipse> FindEclipse(int target, bool forward, const PhaseNumber& at,
                                        const std::function<bool(const FoundEclipse&)>& wanted,
                                        const KeepSearching& keep_searching);

// The first days of the SD months, one after another.
class MonthFirsts {
 public:
  // From the first one before or after a day; it is never that day itself.
  MonthFirsts(DayNumber day_number, bool forward);

  // Nothing where the years do not fit 32 bits any more.
  std::optional<DayNumber> Day() const;
  void Step();

 private:
  SDDate date_;
  bool forward_;
  bool valid_;
};

// Whether a day is the first of its month in ARC, LLT and KSG.
bool IsCoincidenceOf1sts(DayNumber day_number);

// The next or previous day, not the given one, that is the first of its month in SD, ARC, LLT and
// KSG; nothing when the search is given up or leaves the years that fit 32 bits.
std::optional<DayNumber> FindCoincidence(DayNumber day_number, bool forward,
                                         const KeepSearching& keep_searching);

}  // namespace tarnwick
