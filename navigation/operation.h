// What moves, searches and recalls have in common.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "controls/desktop.h"
#include "moment/entry_section.h"
#include "moment/session.h"
#include "navigation/target.h"

namespace tarnwick {

// Carries out an operation on the current moment. If a number overflows in it, the moment becomes
// what it was before and is shown, and the user is told, under `title`.
void CarryOut(Session& session, Desktop& desktop, const std::string& title,
              const std::function<void()>& operation);

// The lunation and phase of a moment; nothing, after telling the user that it happened in
// `routine`, if the phase engine's answers do not fit together.
std::optional<MomentPhase> PhaseOf(UniversalTime moment, Desktop& desktop,
                                   const std::string& routine);

// Whether the moment has left the accepted range, after telling the user.
bool RangeExceeded(const Session& session, Desktop& desktop);

// Where a search has led.
struct FoundMoment {
  UniversalTime moment;
  std::int32_t eclipse_type = 0;
  std::optional<PhaseNumber> eclipse = {};  // to be described
};

// Makes it the current moment, shows it and makes the entries in history and log.
void TakeFound(Session& session, Desktop& desktop, EntrySection& entry, const FoundMoment& found,
               const std::string& operation);

// The lines that describe the eclipse on display, with the times as they are read; none where there
// is no eclipse.
std::vector<std::string> DescribedEclipseLines(const Session& session);

// How sure its times are; empty where they are sure to less than a minute.
std::string DescribedEclipseCertainty(const Session& session);

}  // namespace tarnwick
