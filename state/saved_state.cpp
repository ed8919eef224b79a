// What the main window keeps from one run of the program to the next.
#include <algorithm>

#include "app/main_window.h"
#include "controls/save_path.h"
#include "controls/text_file.h"
#include "state/state_record.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLargestFile = 65536;  // bytes; a true one has about 400

// Fills its place in the file, and has no other use.
StateRecord MarkerRecord() {
  return {[] { return TextRecord("Looking for something?"); },
          [](StateReader& reader) { return reader.ReadText().has_value(); }};
}

// A run never begins with the search for the same saros; any eclipse takes its place.
StateRecord TargetRecord(ComboBox& list) {
  StateRecord record = RecordOf(list);
  record.read = [&list, read = record.read](StateReader& reader) {
    if (!read(reader)) return false;
    if (list.ListIndex() == kSameSarosTarget) list.SetListIndex(kAnyEclipseTarget);
    return true;
  };
  return record;
}

}  // namespace

// A move may have ended one step beyond the limits, where nothing can be taken up again.
StateRecord frmMain::MomentRecord() {
  return {[this] { return NumberRecord(std::clamp(dblMoment, kLowerLimit, kUpperLimit)); },
          [this](StateReader& reader) {
            const auto moment = reader.ReadNumber();
            if (!moment || *moment < kLowerLimit || *moment > kUpperLimit) return false;
            dblMoment = *moment;
            return true;
          }};
}

StateRecord frmMain::CalendarRecord() {
  return {[this] { return NumberRecord(static_cast<std::int16_t>(intCalendar)); },
          [this](StateReader& reader) {
            const auto calendar = reader.ReadInteger();
            if (!calendar || *calendar < 0 || *calendar >= kCalendarCount) return false;
            intCalendar = static_cast<Calendar>(*calendar);
            return true;
          }};
}

StateRecord frmMain::EclipseTextRecord() {
  return {[this] { return TextRecord(lblActualEclipseData.Caption()); },
          [this](StateReader& reader) {
            const auto text = reader.ReadText();
            if (text) lblActualEclipseData.SetCaption(*text);
            return text.has_value();
          }};
}

std::vector<StateRecord> frmMain::StateRecords() {
  frmLogPreferences& log = log_preferences;
  return {
      MomentRecord(),
      CalendarRecord(),
      RecordOf(optMoveDirection[0], optMoveDirection[1]),
      RecordOf(optPlus, optMinus),
      RecordOf(optNext, optPrevious),
      RecordOf(optGreenwich, optLocal),
      RecordOf(cboMoveStep),
      TargetRecord(cboTarget),
      RecordOf(cboTimeZone),
      RecordOf(cboRefreshPeriod),
      RecordOf(chkRepeatedly),
      RecordOf(chkLog),
      EclipseTextRecord(),
      MarkerRecord(),
      RecordOf(log.optLogFormat[0], log.optLogFormat[1]),
      RecordOf(log.chkIncludeCE),
      RecordOf(log.chkIncludeJC),
      RecordOf(log.chkIncludeARC),
      RecordOf(log.chkIncludeSD),
      RecordOf(log.chkIncludeLLT),
      RecordOf(log.chkIncludeKSG),
      RecordOf(log.chkIncludeCJD),
      RecordOf(log.chkIncludeAJD),
      RecordOf(log.chkIncludePhaseOfMoonAndIllumination),
      RecordOf(log.chkIncludeLunationAndAgeOfMoon),
      RecordOf(log.chkIncludeOLWC),
      RecordOf(cboMonthCalendar),
  };
}

void frmMain::RestoreState() {
  state_file_ = desktop_.StateFile();
  if (!state_file_) return;
  blnRestoring = true;
  if (const auto text = ReadTextFile(*state_file_, kLargestFile)) {
    ReadState(StateRecords(), *text);
  }
  blnRestoring = false;
  intStoredOffset = TimeZoneOffsetMinutes();
}

bool frmMain::SaveState() {
  if (!state_file_) return true;
  const std::string error = WriteTextFile(*state_file_, StateText(StateRecords()));
  if (error.empty()) return true;
  ReportSaveError(desktop_, "the state", "Save state", error);
  return false;
}

void frmMain::cmdSaveState_Click() {
  if (!SaveState()) return;
  RefreshFunctions();
  cmdSaveState.SetEnabled(false);
  notice.ShowOver(*this, "Saved");
}

}  // namespace tarnwick
