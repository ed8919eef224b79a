#include "navigation/history_section.h"

#include <cmath>
#include <optional>
#include <string_view>
#include <utility>

#include "calendars/entry_parser.h"
#include "calendars/text.h"
#include "engines/eclipse_type.h"
#include "engines/phases.h"
#include "moment/time_zone.h"
#include "moon/phase_cache.h"
#include "navigation/operation.h"

namespace tarnwick {
namespace {

constexpr int kMaximumHistory = 8;

// The zone of an entry, in minutes. Entries name their zone in another form, so that neither marker
// occurs and a recall always selects GMT.
int RecalledOffset(const std::string& entry) {
  for (const auto& [marker, sign] : {std::pair("Greenwich+", 1), std::pair("Greenwich-", -1)}) {
    const std::size_t found = entry.find(marker);
    if (found == std::string::npos) continue;
    const std::string_view rest = std::string_view(entry).substr(found + 10);
    const double hours = LeadingNumber(rest.substr(0, 2));
    const double minutes = rest.size() > 3 ? LeadingNumber(rest.substr(3, 2)) : 0;
    return sign * static_cast<int>(60 * hours + minutes);
  }
  return 0;
}

int TimeZoneIndex(int offset_minutes) {
  return kGmtTimeZone + static_cast<int>(std::nearbyint(2 * offset_minutes / 60.0));
}

// Greatest eclipse can lie just before its syzygy, in the phase before.
PhaseNumber SyzygyOf(PhaseNumber at, int eclipse_type) {
  if (IsLunarEclipse(eclipse_type) && at.phase == kFirstQuarter) return {at.lunation, kFullMoon};
  if (!IsLunarEclipse(eclipse_type) && at.phase == kLastQuarter) {
    return {at.lunation + 1, kNewMoon};
  }
  return at;
}

std::string DescribeRecalledEclipse(Session& session, const PhaseNumber& at, int eclipse_type) {
  const PhaseNumber syzygy = SyzygyOf(at, eclipse_type);
  const EclipseRecord record = FindPhaseEvent(syzygy.lunation, syzygy.phase).eclipse;
  return record.type == 0 ? "" : DescribeEclipse(session, record);
}

}  // namespace

HistorySection::HistorySection(Form& form, Session& session, Desktop& desktop, EntrySection& entry,
                               TimeSection& time)
    : fraHistory(form, "fraHistory", "History"),
      session_(session),
      desktop_(desktop),
      entry_(entry),
      time_(time) {
  cboHistory.on_click = [this] { cboHistory_Click(); };
}

void HistorySection::UpdateAvailability() { fraHistory.SetEnabled(session_.IsIdle()); }

std::string HistorySection::HistoryText(const std::string& date) const {
  std::string text = date;
  if (!IsDayCount(session_.CurrentCalendar())) text += " " + session_.TimeText();
  text += session_.IsGreenwich() ? " (Greenwich; local = " : " (local = ";
  return text + RemoveChars(time_.cboTimeZone.Text(), " ") + ")";
}

std::string HistorySection::AddHistoryEntry(const std::string& date, std::int16_t eclipse_type) {
  std::string entry = HistoryText(date);
  const std::string last = cboHistory.ListCount() == 0 ? "" : cboHistory.Items().back().text;
  if (entry == last) return "";
  blnAddingHistory = true;
  if (cboHistory.ListCount() == kMaximumHistory) cboHistory.RemoveItem(0);
  cboHistory.AddItem(entry, eclipse_type);
  cboHistory.SetListIndex(cboHistory.ListCount() - 1);
  intHistoryIndex = static_cast<std::int16_t>(cboHistory.ListIndex());
  blnAddingHistory = false;
  return entry;
}

void HistorySection::cboHistory_Click() {
  if (blnAddingHistory) return;
  if (cboHistory.ListIndex() != intHistoryIndex) {
    session_.blnRestoringHistory = true;
    RecallHistory();
    session_.blnRestoringHistory = false;
  }
  session_.hooks.focus_on_date();
}

void HistorySection::RecallHistory() {
  session_.SetEclipseText("");
  entry_.ClearTexts();
  session_.SetClockRunning(false);
  const std::string text = cboHistory.Text();
  (Contains(text, "Greenwich;") ? time_.optGreenwich : time_.optLocal).SetValue(true);
  time_.cboTimeZone.SetListIndex(TimeZoneIndex(RecalledOffset(text)));

  std::int16_t code = kEntryOk;
  UniversalTime moment = session_.Moment();
  entry_.ParseDateEntry(text, code, moment);
  if (code != kEntryOk) {
    desktop_.ShowMessage({"Error" + std::to_string(code) + " when selecting from History.", "Error",
                          MessageIcon::kExclamation});
    return;
  }
  session_.SetMoment(moment);
  session_.hooks.show_moment();
  const auto at = PhaseOf(moment, desktop_, "cboHistory_Click");
  const int eclipse_type = cboHistory.ItemData();
  session_.hooks.log(
      {text, "Selection from history",
       at && eclipse_type > 0 ? DescribeRecalledEclipse(session_, at->at, eclipse_type) : ""});
  intHistoryIndex = static_cast<std::int16_t>(cboHistory.ListIndex());
}

}  // namespace tarnwick
