#include "navigation/operation.h"

#include "calendars/date_processing.h"
#include "engines/checked_arithmetic.h"
#include "moment/moon_section.h"
#include "moon/clock_error.h"
#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "navigation/eclipse_description.h"

namespace tarnwick {
namespace {

// Of the eclipse on display.
std::optional<EclipseRecord> DescribedRecord(const Session& session) {
  const auto& syzygy = session.DescribedEclipse();
  if (!syzygy) return std::nullopt;
  return FindPhaseEvent(syzygy->lunation, syzygy->phase).eclipse;
}

}  // namespace

void CarryOut(Session& session, Desktop& desktop, const std::string& title,
              const std::function<void()>& operation) {
  const UniversalTime start = session.Moment();
  try {
    operation();
  } catch (const RuntimeError& error) {  // no row of today overflows: the limits end it before
    session.SetMoment(start);
    session.hooks.show_moment();
    desktop.ShowMessage({error.what(), title, MessageIcon::kExclamation});
  }
}

std::optional<MomentPhase> PhaseOf(UniversalTime moment, Desktop& desktop,
                                   const std::string& routine) {
  const std::int32_t lunation = LunationOf(moment);
  const PhaseInEffect in_effect = GetPhase(lunation, moment);
  if (in_effect.phase >= 0) return MomentPhase{{lunation, in_effect.phase}, in_effect.exact};
  ReportPhaseError(desktop, in_effect.phase, routine);
  return std::nullopt;
}

bool RangeExceeded(const Session& session, Desktop& desktop) {
  const bool late = session.Moment() > kUpperLimit;
  if (session.Moment() >= kLowerLimit && !late) return false;
  desktop.ShowMessage({late ? "Latest date exceeded." : "Earliest date exceeded.", "Out of range",
                       MessageIcon::kExclamation});
  return true;
}

void TakeFound(Session& session, Desktop& desktop, EntrySection& entry, const FoundMoment& found,
               const std::string& operation) {
  session.SetMoment(found.moment);
  if (found.eclipse) {
    session.TakeEclipse(*found.eclipse);
  } else {
    session.ClearEclipse();
  }
  Outcome outcome{session.hooks.show_moment(), operation};
  entry.CopyDateToEntryBox();
  if (found.eclipse) outcome.description = EclipseSentence(DescribedEclipseLines(session));
  outcome.eclipse_type = static_cast<std::int16_t>(found.eclipse_type);
  RangeExceeded(session, desktop);
  session.hooks.finish(outcome);
}

std::vector<std::string> DescribedEclipseLines(const Session& session) {
  const auto record = DescribedRecord(session);
  if (!record) return {};
  return EclipseLines(*record, AJDToCJD(GreatestEclipse(*record), session.ReadingOffset()));
}

std::string DescribedEclipseCertainty(const Session& session) {
  const auto record = DescribedRecord(session);
  if (!record) return {};
  const std::string error = ClockErrorSuffix(ClockError(GreatestEclipse(*record)));
  if (error.empty()) return {};
  return "The times of this eclipse are sure to" + error + ", the standard error of delta T";
}

}  // namespace tarnwick
