#include "navigation/search_section.h"

#include <cstdint>
#include <string_view>

#include "calendars/date_processing.h"
#include "calendars/text.h"
#include "controls/choice.h"
#include "engines/phases.h"
#include "moon/phase_cache.h"
#include "moon/syzyg.h"
#include "navigation/eclipse_description.h"
#include "navigation/operation.h"

namespace tarnwick {
namespace {

constexpr double kAlmostASaros = 6580.0;  // days; a saros has 6585.32

bool IsBlank(int target) { return target == kFirstBlankTarget || target == kSecondBlankTarget; }

std::int32_t SarosOf(const PhaseNumber& syzygy) {
  return FindPhaseEvent(syzygy.lunation, syzygy.phase).eclipse.saros;
}

std::optional<FoundMoment> MomentOf(const std::optional<FoundEclipse>& found) {
  if (!found) return std::nullopt;
  return FoundMoment{GreatestEclipse(found->record), found->record.type, found->at};
}

}  // namespace

SearchSection::SearchSection(Form& form, Session& session, Desktop& desktop, EntrySection& entry,
                             frmNotice& notice)
    : fraSearch(form, "fraSearch", "Search"),
      lblSearching(form, "lblSearching", "Searching ..."),
      lblActualEclipseData(form, "lblActualEclipseData"),
      form_(form),
      session_(session),
      desktop_(desktop),
      entry_(entry),
      notice_(notice) {
  for (const TargetRow& row : kTargets) cboTarget.AddItem(std::string(row.text), row.phase);
  cboTarget.SetListIndex(kTotalSolarTarget);
  lblSearching.SetVisible(false);
  cboTarget.SetToolTipText("What to search for, from the moment on display or typed");
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

void SearchSection::ShowEclipse() {
  lblActualEclipseData.SetCaption(EclipseCaption(DescribedEclipseLines(session_)));
  lblActualEclipseData.SetToolTipText(DescribedEclipseCertainty(session_));
}

std::optional<PhaseNumber> SearchSection::EclipseOf(std::string_view description) {
  const std::size_t number = description.find(kLunationText);
  if (number == std::string_view::npos) return std::nullopt;
  const auto lunation =
      static_cast<std::int32_t>(LeadingNumber(description.substr(number + kLunationText.size())));
  for (const std::int16_t phase : {kNewMoon, kFullMoon}) {
    const std::int32_t type = FindPhaseEvent(lunation, phase).eclipse.type;
    if (type != 0 && description.starts_with(EclipseTypeText(static_cast<std::int16_t>(type)))) {
      return PhaseNumber{lunation, phase};
    }
  }
  return std::nullopt;
}

void SearchSection::cmdSearch_Click() {
  CarryOut(session_, desktop_, form_.Caption(), [this] {
    if (!entry_.TakeUpTypedMoment()) return;
    const int target = cboTarget.ListIndex();
    if (IsBlank(target)) {
      desktop_.ShowMessage(
          {"Please specify target for search.", "Search", MessageIcon::kExclamation});
    } else if (Search(target)) {
      return;
    }
    if (!session_.IsEnding()) session_.hooks.remember();
  });
}

// Whether anything was found.
bool SearchSection::Search(int target) {
  const std::optional<PhaseNumber> described = session_.DescribedEclipse();
  entry_.txbDate.SetText("");
  session_.SetClockRunning(false);
  const auto at = PhaseOf(session_.Moment(), desktop_, "cmdSearch_Click");
  if (!at) return false;
  if (target == kSameSarosTarget && !described) {
    desktop_.ShowMessage(
        {"Eclipse date must be displayed in order to search for the next or "
         "previous eclipse in the same saros series.",
         "No eclipse displayed"});
    return false;
  }
  session_.DescribeEclipse(std::nullopt);
  const auto result = Find(target, *at, described);
  if (session_.IsEnding()) return false;
  if (result) {
    TakeFound(session_, desktop_, entry_, *result, SearchOperation(target));
    if (target == kSameSarosTarget) TellOfNewSeries(*described, *result->eclipse);
  } else {
    session_.hooks.focus_on_date();
  }
  return result.has_value();
}

std::optional<FoundMoment> SearchSection::Find(int target, const MomentPhase& at,
                                               const std::optional<PhaseNumber>& described) {
  const ActivityScope searching(session_, Activity::kSearching);
  blnSearching = true;
  if (target == kSameSarosTarget) return FindSameSaros(*described);
  if (target == kCoincidenceTarget) return FindCoincidenceTarget();
  return target < kAnyEclipseTarget ? FindPhaseTarget(target, at) : FindEclipseTarget(target, at);
}

// A saros later there may be no eclipse of the series any more, but one of its neighbour.
void SearchSection::TellOfNewSeries(const PhaseNumber& described, const PhaseNumber& found) {
  const std::int32_t old_series = SarosOf(described);
  const std::int32_t new_series = SarosOf(found);
  if (old_series == new_series) return;
  notice_.ShowOver(form_, "Saros series " + std::to_string(old_series) +
                              (optNext.Value() ? " ends" : " begins") +
                              " here: the eclipse found belongs to series " +
                              std::to_string(new_series) + ".");
}

// One pass of a search: lets events in and tells whether to go on.
bool SearchSection::KeepSearching() {
  desktop_.Yield(YieldMode::kPoll);
  return blnSearching && !session_.IsEnding();
}

std::optional<FoundMoment> SearchSection::FindPhaseTarget(int target, const MomentPhase& at) {
  const PhaseNumber found = FindPhase(target, optNext.Value(), at);
  const PhaseEvent event = FindPhaseEvent(found.lunation, found.phase);
  return FoundMoment{event.ut, event.eclipse.type};
}

std::optional<FoundMoment> SearchSection::FindEclipseTarget(int target, const MomentPhase& at) {
  const PhaseNumber last = session_.FoundEclipse();
  return MomentOf(FindEclipse(
      target, optNext.Value(), at.at, [&](const FoundEclipse& one) { return one.at != last; },
      [this] { return KeepSearching(); }));
}

// The nearest eclipse of the same kind beyond a moment that is a little less than a saros away.
std::optional<FoundMoment> SearchSection::FindSameSaros(const PhaseNumber& described) {
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
  const int target = described.phase == kFullMoon ? kLunarEclipseTarget : kSolarEclipseTarget;
  return MomentOf(FindEclipse(target, forward, at, beyond, [this] { return KeepSearching(); }));
}

std::optional<FoundMoment> SearchSection::FindCoincidenceTarget() {
  lblSearching.SetVisible(true);
  const DayNumber today = SplitCJD(session_.LocalMoment()).day_number;
  const auto found = FindCoincidence(today, optNext.Value(), [this] { return KeepSearching(); });
  lblSearching.SetVisible(false);
  if (found) return FoundMoment{NoonOf(*found, session_.ReadingOffset())};
  // The calendar reaches so far beyond the limits that no search is known to end by itself.
  const bool given_up = !blnSearching || session_.IsEnding();
  if (!given_up) notice_.ShowOver(form_, "No coincidence was found.");
  return std::nullopt;
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
