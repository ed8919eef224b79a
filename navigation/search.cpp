// Searches for phases, eclipses and coincidences of calendars.
#include <cmath>
#include <string_view>

#include "app/main_window.h"
#include "calendars/date_processing.h"
#include "calendars/text.h"
#include "controls/keys.h"
#include "engines/checked_arithmetic.h"
#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "navigation/eclipse_description.h"
#include "navigation/target.h"

namespace tarnwick {
namespace {

constexpr double kAlmostASaros = 6580.0;  // days; a saros has 6585.32

bool IsBlank(int target) { return target == kFirstBlankTarget || target == kSecondBlankTarget; }

// A description begins with the type of its eclipse.
bool TellsOfLunarEclipse(std::string_view description) {
  return Contains(description.substr(0, description.find('\r')), "lunar");
}

}  // namespace

// Where a search ends.
struct frmMain::SearchResult {
  double moment = 0;
  std::int32_t eclipse_type = 0;
  std::optional<EclipseRecord> eclipse;  // to be described
};

std::string frmMain::SearchOperation(int target) const {
  std::string text(kTargets[static_cast<std::size_t>(target)].text);
  for (char& c : text) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return std::string("Search for") + (optNext.Value() ? " next " : " previous ") + text + ".";
}

void frmMain::cmdSearch_Click() {
  const double start = dblMoment;
  try {
    if (!TakeUpTypedMoment(true)) return;
    const int target = cboTarget.ListIndex();
    if (target < 0 || IsBlank(target)) {
      desktop_.ShowMessage(
          {"Please specify target for search.", "Search", MessageIcon::kExclamation});
      return;
    }
    const std::string shown_eclipse = lblActualEclipseData.Caption();
    lblActualEclipseData.SetCaption("");
    txbDate.SetText("");
    StopClock();
    RunSearch(target, shown_eclipse);
  } catch (const RuntimeError& error) {
    dblMoment = start;
    DisplayMoment();
    desktop_.ShowMessage({error.what(), Caption(), MessageIcon::kExclamation});
  }
}

void frmMain::RunSearch(int target, const std::string& shown_eclipse) {
  const std::string operation = SearchOperation(target);
  const std::optional<PhaseNumber> at = PhaseOfMoment("cmdSearch_Click");
  if (!at) return;
  if (target == kSameSarosTarget && shown_eclipse.empty()) {
    desktop_.ShowMessage(
        {"Eclipse date must be displayed in order to search for the next or "
         "previous eclipse in the same saros series.",
         "No eclipse displayed"});
    return;
  }

  blnSearching = true;
  EnableDisableCommands(false);
  fraHistory.SetEnabled(false);
  std::optional<SearchResult> result;
  if (target == kSameSarosTarget) {
    result = SearchSameSaros(shown_eclipse);
  } else if (target == kCoincidenceTarget) {
    result = SearchCoincidence();
  } else {
    result = target < kAnyEclipseTarget ? SearchPhase(target, *at) : SearchEclipse(target, *at);
  }
  blnSearching = false;
  if (blnEnding) return;
  fraHistory.SetEnabled(true);
  EnableDisableCommands(true);
  if (!result) {
    SetTheFocus();
    return;
  }

  dblMoment = result->moment;
  if (!result->eclipse) lngEclipseLunation = kNoEclipse;
  const std::string summary = DisplayMoment();
  CopyDateToEntryBox();
  const std::string description = result->eclipse ? DescribeEclipse(*result->eclipse) : "";
  const auto type = static_cast<std::int16_t>(result->eclipse_type);
  AddLogEntry(AddHistoryEntry(summary, type), operation, description);
}

std::optional<PhaseNumber> frmMain::PhaseOfMoment(const std::string& routine) {
  PhaseNumber at;
  at.lunation = LunationOf(UniversalTime(dblMoment));
  const PhaseInEffect in_effect = GetPhase(at.lunation, UniversalTime(dblMoment));
  at.phase = in_effect.phase;
  blnAtPhase = in_effect.exact;
  if (at.phase >= 0) return at;
  ReportPhaseError(at.phase, routine);
  return std::nullopt;
}

// One pass of a search: lets events in and tells whether to go on.
bool frmMain::KeepSearching() {
  desktop_.Yield(YieldMode::kPoll);
  return blnSearching && !blnEnding;
}

std::optional<frmMain::SearchResult> frmMain::SearchPhase(int target, const PhaseNumber& at) {
  const PhaseNumber found = FindPhase(target, optNext.Value(), at, blnAtPhase);
  const PhaseEvent& event = FindPhaseEvent(found.lunation, found.phase);
  return SearchResult{event.ut.days, event.eclipse.type, std::nullopt};
}

// The eclipse found, from now on the one on display.
std::optional<frmMain::SearchResult> frmMain::TakeEclipse(
    const std::optional<FoundEclipse>& found) {
  if (!found) return std::nullopt;
  lngEclipseLunation = found->at.lunation;
  intEclipsePhase = found->at.phase;
  return SearchResult{GreatestEclipse(found->record).days, found->record.type, found->record};
}

std::optional<frmMain::SearchResult> frmMain::SearchEclipse(int target, const PhaseNumber& at) {
  const PhaseNumber shown{lngEclipseLunation, intEclipsePhase};
  const auto found = FindEclipse(
      target, optNext.Value(), at, [&](const FoundEclipse& one) { return one.at != shown; },
      [this] { return KeepSearching(); });
  return TakeEclipse(found);
}

// The nearest eclipse of the same kind beyond a moment that is a little less than a saros away.
std::optional<frmMain::SearchResult> frmMain::SearchSameSaros(const std::string& shown_eclipse) {
  const bool forward = optNext.Value();
  const bool lunar = TellsOfLunarEclipse(shown_eclipse);
  const double moment = dblMoment + (forward ? kAlmostASaros : -kAlmostASaros);
  PhaseNumber at;
  at.lunation = LunationOf(UniversalTime(moment));
  const PhaseInEffect in_effect = GetPhase(at.lunation, UniversalTime(moment));
  at.phase = in_effect.phase;
  blnAtPhase = in_effect.exact;
  // From a lunation before or behind, lest an eclipse is missed whose greatest phase lies beyond
  // the moment although its syzygy does not.
  at.lunation += forward ? -1 : 1;
  const auto beyond = [&](const FoundEclipse& one) {
    const double greatest = GreatestEclipse(one.record).days;
    return forward ? greatest > moment : greatest < moment;
  };
  const auto found = FindEclipse(lunar ? kLunarEclipseTarget : kSolarEclipseTarget, forward, at,
                                 beyond, [this] { return KeepSearching(); });
  return TakeEclipse(found);
}

std::optional<frmMain::SearchResult> frmMain::SearchCoincidence() {
  lblSearching.SetVisible(true);
  const DayNumber today = SplitCJD(AJDToCJD(dblMoment)).day_number;
  const auto found = FindCoincidence(today, optNext.Value(), [this] { return KeepSearching(); });
  lblSearching.SetVisible(false);
  if (!found) return std::nullopt;
  return SearchResult{NoonOf(*found, ReadingOffset()).days, 0, std::nullopt};
}

void frmMain::Form_KeyPress(int& key) {
  if (key == kEscapeKey && blnSearching) blnSearching = false;
}

void frmMain::ClearEclipse() {
  lblActualEclipseData.SetCaption("");
  lngEclipseLunation = kNoEclipse;
}

std::string frmMain::DescribeEclipse(const EclipseRecord& record) {
  const auto lines = EclipseLines(record, AJDToCJD(dblMoment));
  lblActualEclipseData.SetCaption(EclipseCaption(lines));
  return EclipseSentence(lines);
}

void frmMain::cboTarget_Click() { SetTheFocus(); }

void frmMain::optNext_Click() {
  ShowChoice(optNext, optPrevious);
  SetTheFocus();
}

void frmMain::optPrevious_Click() {
  ShowChoice(optPrevious, optNext);
  SetTheFocus();
}

}  // namespace tarnwick
