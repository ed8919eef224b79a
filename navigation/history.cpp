// The results of the last operations, and the reset.
#include <cmath>
#include <string_view>

#include "app/main_window.h"
#include "calendars/entry_parser.h"
#include "calendars/text.h"
#include "moment/time_zone.h"
#include "moon/phase_cache.h"
#include "navigation/step.h"

namespace tarnwick {
namespace {

constexpr int kMaximumHistory = 8;
constexpr int kFirstLunarType = 8;

// The zone of an entry, in minutes, by the markers that are given. Entries name their zone in another
// form, in which neither occurs: a recall selects GMT.
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
  if (eclipse_type >= kFirstLunarType && at.phase == 1) return {at.lunation, 2};
  if (eclipse_type < kFirstLunarType && at.phase == 3) return {at.lunation + 1, 0};
  return at;
}

}  // namespace

std::string frmMain::HistoryText(const std::string& date) const {
  std::string text = date;
  if (!IsDayCount(intCalendar)) text += " " + lblTime[1].Caption().substr(0, 5);
  text += optGreenwich.Value() ? " (Greenwich; local = " : " (local = ";
  return text + RemoveChars(cboTimeZone.Text(), " ") + ")";
}

std::string frmMain::AddHistoryEntry(const std::string& date, std::int16_t eclipse_type) {
  cmdViewLog.SetEnabled(!log_window.IsEmpty());
  cmdSaveState.SetEnabled(true);
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

void frmMain::cboHistory_Click() {
  if (blnAddingHistory) return;
  if (cboHistory.ListIndex() != intHistoryIndex) {
    blnRestoringHistory = true;
    RecallHistory();
    blnRestoringHistory = false;
  }
  SetTheFocus();
}

void frmMain::RecallHistory() {
  lblActualEclipseData.SetCaption("");
  txbDate.SetText("");
  txbPlusMinus.SetText("");
  StopClock();
  const std::string entry = cboHistory.Text();
  (Contains(entry, "Greenwich;") ? optGreenwich : optLocal).SetValue(true);
  cboTimeZone.SetListIndex(TimeZoneIndex(RecalledOffset(entry)));

  std::int16_t code = kEntryOk;
  double ajd = dblMoment;
  ParseDateEntry(entry, code, ajd);
  if (code != kEntryOk) {
    desktop_.ShowMessage({"Error" + std::to_string(code) + " when selecting from History.", "Error",
                          MessageIcon::kExclamation});
    return;
  }
  dblMoment = ajd;
  DisplayMoment();
  const std::optional<PhaseNumber> at = PhaseOfMoment("cboHistory_Click");
  const int eclipse_type = cboHistory.ItemData();
  const std::string description =
      at && eclipse_type > 0 ? DescribeRecalledEclipse(*at, eclipse_type) : "";
  AddLogEntry(entry, "Selection from history", description);
  intHistoryIndex = static_cast<std::int16_t>(cboHistory.ListIndex());
  MarkCurrentCalendar();
}

std::string frmMain::DescribeRecalledEclipse(const PhaseNumber& at, int eclipse_type) {
  const PhaseNumber syzygy = SyzygyOf(at, eclipse_type);
  const EclipseRecord record = FindPhaseEvent(syzygy.lunation, syzygy.phase).eclipse;
  return record.type == 0 ? "" : DescribeEclipse(record);
}

void frmMain::cmdReset_Click() {
  intCalendar = kCE;
  MarkCurrentCalendar();
  optLocal.SetValue(true);
  optNext.SetValue(true);
  optPlus.SetValue(true);
  optMoveDirection[0].SetValue(true);
  chkRepeatedly.SetValue(false);
  chkLog.SetValue(false);
  cboMoveStep.SetListIndex(kOneDayStep);
  cboRefreshPeriod.SetListIndex(kOneSecondPeriod);
  cboTarget.SetListIndex(kFullMoonTarget);
  if (log_preferences.IsLoaded()) {
    const Message question{"Reset log preferences also?", "Reset", MessageIcon::kQuestion,
                           MessageButtons::kYesNo};
    if (desktop_.ShowMessage(question) == MessageAnswer::kYes) log_preferences.SetDefaults();
  }
  cmdNow_Click();
}

}  // namespace tarnwick
