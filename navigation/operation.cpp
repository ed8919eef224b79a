#include "navigation/operation.h"

#include "engines/checked_arithmetic.h"
#include "moment/moon_section.h"
#include "moon/syzyg.h"
#include "navigation/eclipse_description.h"

namespace tarnwick {

void CarryOut(Session& session, Desktop& desktop, const std::string& title,
              const std::function<void()>& operation) {
  const UniversalTime start = session.Moment();
  try {
    operation();
  } catch (const RuntimeError& error) {
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

std::string DescribeEclipse(Session& session, const EclipseRecord& record) {
  const auto lines = EclipseLines(record, session.LocalMoment());
  session.SetEclipseText(EclipseCaption(lines));
  return EclipseSentence(lines);
}

}  // namespace tarnwick
