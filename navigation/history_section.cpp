#include "navigation/history_section.h"

#include <optional>
#include <string_view>
#include <utility>

#include "calendars/entry_parser.h"
#include "calendars/text.h"
#include "engines/eclipse_type.h"
#include "engines/phases.h"
#include "moment/time_zone.h"
#include "moon/phase_cache.h"
#include "navigation/eclipse_description.h"
#include "navigation/operation.h"

namespace tarnwick {
namespace {

constexpr int kMaximumHistory = 8;

// Greatest eclipse can lie just before its syzygy, in the phase before.
PhaseNumber SyzygyOf(PhaseNumber at, int eclipse_type) {
  if (IsLunarEclipse(eclipse_type) && at.phase == kFirstQuarter) return {at.lunation, kFullMoon};
  if (!IsLunarEclipse(eclipse_type) && at.phase == kLastQuarter) {
    return {at.lunation + 1, kNewMoon};
  }
  return at;
}

// The eclipse of that type at a recalled moment.
std::optional<PhaseNumber> RecalledEclipse(const PhaseNumber& at, int eclipse_type) {
  if (eclipse_type == kNotEclipsed) return std::nullopt;
  const PhaseNumber syzygy = SyzygyOf(at, eclipse_type);
  const EclipseRecord record = FindPhaseEvent(syzygy.lunation, syzygy.phase).eclipse;
  return record.type == kNotEclipsed ? std::nullopt : std::optional(syzygy);
}

}  // namespace

HistorySection::HistorySection(Form& form, Session& session, Desktop& desktop, EntrySection& entry,
                               TimeSection& time)
    : fraHistory(form, "fraHistory", "History"),
      session_(session),
      desktop_(desktop),
      entry_(entry),
      time_(time) {
  cmdBack.SetToolTipText("Back to what was shown before");
  cmdForward.SetToolTipText("Forward again");
  cboHistory.on_click = [this] { cboHistory_Click(); };
  cmdBack.on_click = [this] { Return(trail_.GoBack()); };
  cmdForward.on_click = [this] { Return(trail_.GoForward()); };
  UpdateAvailability();
}

void HistorySection::UpdateAvailability() {
  fraHistory.SetEnabled(session_.IsIdle());
  cmdBack.SetEnabled(trail_.CanGoBack());
  cmdForward.SetEnabled(trail_.CanGoForward());
}

void HistorySection::Remember() {
  trail_.Add({session_.Moment(), session_.CurrentCalendar(), session_.IsGreenwich(),
              session_.ZoneOffset(), session_.DescribedEclipse()});
  UpdateAvailability();
}

// A search goes on from the eclipse described, which it would else find again.
void HistorySection::Return(const Visit& visit) {
  time_.Select(visit.greenwich, visit.zone_offset);
  session_.SetClockRunning(false);
  session_.SetCalendar(visit.calendar);
  session_.SetMoment(visit.moment);
  if (visit.eclipse) {
    session_.TakeEclipse(*visit.eclipse);
  } else {
    session_.ClearEclipse();
  }
  session_.hooks.show_moment();
  entry_.CopyDateToEntryBox();
  UpdateAvailability();
}

std::string HistorySection::HistoryText(const std::string& date) const {
  std::string text = date;
  if (!IsDayCount(session_.CurrentCalendar())) text += " " + session_.TimeText();
  text += session_.IsGreenwich() ? " (Greenwich; local = " : " (local = ";
  return text + RemoveChars(time_.cboTimeZone.Text(), " ") + ")";
}

std::string HistorySection::AddHistoryEntry(const std::string& date, std::int16_t eclipse_type) {
  std::string entry = HistoryText(date);
  const std::string last = cboHistory.ListCount() == 0 ? "" : cboHistory.Items().back().text;
  if (entry == last) {
    SelectNewest();
    return "";
  }
  if (cboHistory.ListCount() == kMaximumHistory) {
    cboHistory.RemoveItem(0);
    moments_.erase(moments_.begin());
  }
  cboHistory.AddItem(entry, eclipse_type);
  moments_.push_back(session_.Moment());
  SelectNewest();
  return entry;
}

void HistorySection::SelectNewest() {
  const ScopedFlag adding(blnAddingHistory);
  cboHistory.SetListIndex(cboHistory.ListCount() - 1);
  intHistoryIndex = static_cast<std::int16_t>(cboHistory.ListIndex());
}

void HistorySection::cboHistory_Click() {
  if (blnAddingHistory) return;
  if (cboHistory.ListIndex() != intHistoryIndex) {
    const ScopedFlag recalling(session_.blnRestoringHistory);
    RecallHistory();
  }
  session_.hooks.focus_on_date();
}

void HistorySection::RecallHistory() {
  session_.DescribeEclipse(std::nullopt);
  entry_.ClearTexts();
  session_.SetClockRunning(false);
  const std::string text = cboHistory.Text();
  time_.Select(Contains(text, "Greenwich;"), 0);  // of zones a recall knows GMT only

  Entry read = entry_.ParseDateEntry(text);
  if (read.code != kEntryOk) {  // no entry of today: each is written so that it can be read
    desktop_.ShowMessage({"Error" + std::to_string(read.code) + " when selecting from History.",
                          "Error", MessageIcon::kExclamation});
    return;
  }
  if (read.calendar == kAJD) read.ajd = moments_[static_cast<std::size_t>(cboHistory.ListIndex())];
  session_.SetCalendar(*read.calendar);
  session_.SetMoment(read.ajd);
  session_.hooks.show_moment();
  if (const auto at = PhaseOf(read.ajd, desktop_, "cboHistory_Click")) {
    session_.DescribeEclipse(RecalledEclipse(at->at, cboHistory.ItemData()));
  }
  // Read in another zone, an entry may lie beyond the limits.
  RangeExceeded(session_, desktop_);
  const auto lines = DescribedEclipseLines(session_);
  session_.hooks.log({text, "Selection from history", lines.empty() ? "" : EclipseSentence(lines)});
  Remember();
  intHistoryIndex = static_cast<std::int16_t>(cboHistory.ListIndex());
}

}  // namespace tarnwick
