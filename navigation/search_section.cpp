#include "navigation/search_section.h"

#include <cstdint>
#include <string_view>
#include <utility>

#include "calendars/date_processing.h"
#include "calendars/text.h"
#include "controls/choice.h"
#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "navigation/operation.h"

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
struct SearchSection::Result {
  UniversalTime moment;
  std::int32_t eclipse_type = 0;
  std::optional<EclipseRecord> eclipse;  // to be described
};

SearchSection::SearchSection(Form& form, Session& session, Desktop& desktop, EntrySection& entry)
    : fraSearch(form, "fraSearch", "Search"),
      lblSearching(form, "lblSearching", "Searching ..."),
      lblActualEclipseData(form, "lblActualEclipseData"),
      form_(form),
      session_(session),
      desktop_(desktop),
      entry_(entry) {
  for (const TargetRow& row : kTargets) cboTarget.AddItem(std::string(row.text), row.phase);
  cboTarget.SetListIndex(kTotalSolarTarget);
  lblSearching.SetVisible(false);
  lblActualEclipseData.SetForeColor(kResultColor);
  cmdSearch.on_click = [this] { cmdSearch_Click(); };
  cboTarget.on_click = [this] { session_.hooks.focus_on_date(); };
  optNext.on_click = [this] { optNext_Click(); };
  optPrevious.on_click = [this] { optPrevious_Click(); };
  optNext.SetValue(true);
}

void SearchSection::SetDefaults() {
  optNext.SetValue(true);
  cboTarget.SetListIndex(kFullMoonTarget);
}

void SearchSection::UpdateAvailability() {
  SetEnabled({&fraSearch, &cmdSearch}, session_.IsIdle());
}

void SearchSection::LeaveSameSaros() {
  if (cboTarget.ListIndex() == kSameSarosTarget) cboTarget.SetListIndex(kAnyEclipseTarget);
}

std::string SearchSection::SearchOperation(int target) const {
  std::string text(kTargets[static_cast<std::size_t>(target)].text);
  for (char& c : text) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return std::string("Search for") + (optNext.Value() ? " next " : " previous ") + text + ".";
}

void SearchSection::cmdSearch_Click() {
  CarryOut(session_, desktop_, form_.Caption(), [this] {
    if (!entry_.TakeUpTypedMoment(true)) return;
    const int target = cboTarget.ListIndex();
    if (target < 0 || IsBlank(target)) {
      desktop_.ShowMessage(
          {"Please specify target for search.", "Search", MessageIcon::kExclamation});
      return;
    }
    Search(target);
  });
}

void SearchSection::Search(int target) {
  const std::string shown_eclipse = session_.EclipseText();
  session_.SetEclipseText("");
  entry_.txbDate.SetText("");
  session_.SetClockRunning(false);
  const auto at = PhaseOf(session_.Moment(), desktop_, "cmdSearch_Click");
  if (!at) return;
  if (target == kSameSarosTarget && shown_eclipse.empty()) {
    desktop_.ShowMessage(
        {"Eclipse date must be displayed in order to search for the next or "
         "previous eclipse in the same saros series.",
         "No eclipse displayed"});
    return;
  }
  const auto result = Find(target, *at, shown_eclipse);
  if (session_.IsEnding()) return;
  if (result) {
    TakeResult(*result, SearchOperation(target));
  } else {
    session_.hooks.focus_on_date();
  }
}

std::optional<SearchSection::Result> SearchSection::Find(int target, const MomentPhase& at,
                                                         const std::string& shown_eclipse) {
  const ActivityScope searching(session_, Activity::kSearching);
  blnSearching = true;
  if (target == kSameSarosTarget) return FindSameSaros(shown_eclipse);
  if (target == kCoincidenceTarget) return FindCoincidenceTarget();
  return target < kAnyEclipseTarget ? FindPhaseTarget(target, at) : FindEclipseTarget(target, at);
}

void SearchSection::TakeResult(const Result& result, const std::string& operation) {
  session_.SetMoment(result.moment);
  if (!result.eclipse) session_.ForgetEclipseMark();
  Outcome outcome{session_.hooks.show_moment(), operation};
  entry_.CopyDateToEntryBox();
  if (result.eclipse) outcome.description = DescribeEclipse(session_, *result.eclipse);
  outcome.eclipse_type = static_cast<std::int16_t>(result.eclipse_type);
  session_.hooks.finish(outcome);
}

// One pass of a search: lets events in and tells whether to go on.
bool SearchSection::KeepSearching() {
  desktop_.Yield(YieldMode::kPoll);
  return blnSearching && !session_.IsEnding();
}

std::optional<SearchSection::Result> SearchSection::FindPhaseTarget(int target,
                                                                    const MomentPhase& at) {
  const PhaseNumber found = FindPhase(target, optNext.Value(), at);
  const PhaseEvent event = FindPhaseEvent(found.lunation, found.phase);
  return Result{event.ut, event.eclipse.type, std::nullopt};
}

// The eclipse found, from now on the one on display.
std::optional<SearchSection::Result> SearchSection::TakeEclipse(
    const std::optional<FoundEclipse>& found) {
  if (!found) return std::nullopt;
  session_.MarkEclipse(found->at.lunation, found->at.phase);
  return Result{GreatestEclipse(found->record), found->record.type, found->record};
}

std::optional<SearchSection::Result> SearchSection::FindEclipseTarget(int target,
                                                                      const MomentPhase& at) {
  const PhaseNumber shown{session_.EclipseLunation(), session_.EclipsePhase()};
  return TakeEclipse(FindEclipse(
      target, optNext.Value(), at.at, [&](const FoundEclipse& one) { return one.at != shown; },
      [this] { return KeepSearching(); }));
}

// The nearest eclipse of the same kind beyond a moment that is a little less than a saros away.
std::optional<SearchSection::Result> SearchSection::FindSameSaros(
    const std::string& shown_eclipse) {
  const bool forward = optNext.Value();
  const UniversalTime moment = session_.Moment() + (forward ? kAlmostASaros : -kAlmostASaros);
  PhaseNumber at{LunationOf(moment), 0};
  at.phase = GetPhase(at.lunation, moment).phase;
  // From a lunation before or behind, lest an eclipse is missed whose greatest phase lies beyond
  // the moment although its syzygy does not.
  at.lunation += forward ? -1 : 1;
  const auto beyond = [&](const FoundEclipse& one) {
    const UniversalTime greatest = GreatestEclipse(one.record);
    return forward ? greatest > moment : greatest < moment;
  };
  const int target = TellsOfLunarEclipse(shown_eclipse) ? kLunarEclipseTarget : kSolarEclipseTarget;
  return TakeEclipse(FindEclipse(target, forward, at, beyond, [this] { return KeepSearching(); }));
}

std::optional<SearchSection::Result> SearchSection::FindCoincidenceTarget() {
  lblSearching.SetVisible(true);
  const DayNumber today = SplitCJD(session_.LocalMoment()).day_number;
  const auto found = FindCoincidence(today, optNext.Value(), [this] { return KeepSearching(); });
  lblSearching.SetVisible(false);
  if (!found) return std::nullopt;
  return Result{NoonOf(*found, session_.ReadingOffset()), 0, std::nullopt};
}

void SearchSection::optNext_Click() {
  ShowChoice(optNext, optPrevious);
  session_.hooks.focus_on_date();
}

void SearchSection::optPrevious_Click() {
  ShowChoice(optPrevious, optNext);
  session_.hooks.focus_on_date();
}

}  // namespace tarnwick
