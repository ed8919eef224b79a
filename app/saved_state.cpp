// What the main window keeps from one run of the program to the next.
#include <algorithm>

#include "app/main_window.h"
#include "controls/save_path.h"
#include "controls/text_file.h"

namespace tarnwick {
namespace {

constexpr char kSaveTitle[] = "Save state";
constexpr std::size_t kLargestFile = 65536;  // bytes; a true one has about 400

// A description has at most about 250; more would let the file grow beyond what is read.
constexpr std::size_t kLongestEclipseText = 1000;

// Fills its place in the file, and has no other use.
StateRecord MarkerRecord() {
  return {[] { return TextRecord("Looking for something?"); },
          [](StateReader& reader) { return reader.ReadText().has_value(); }};
}

// A run never begins with the search for the same saros; any eclipse takes its place.
StateRecord TargetRecord(SearchSection& search) {
  StateRecord record = RecordOf(search.cboTarget);
  record.read = [&search, read = record.read](StateReader& reader) {
    if (!read(reader)) return false;
    search.LeaveSameSaros();
    return true;
  };
  return record;
}

}  // namespace

// A move may have ended one step beyond the limits, where nothing can be taken up again.
StateRecord frmMain::MomentRecord() {
  return {
      [this] { return NumberRecord(std::clamp(session_.Moment(), kLowerLimit, kUpperLimit).days); },
      [this](StateReader& reader) {
        const auto ajd = reader.ReadNumber();
        if (!ajd) return false;
        const UniversalTime moment(*ajd);
        if (moment < kLowerLimit || moment > kUpperLimit) return false;
        session_.SetMoment(moment);
        return true;
      }};
}

StateRecord frmMain::CalendarRecord() {
  return {[this] { return NumberRecord(static_cast<std::int16_t>(session_.CurrentCalendar())); },
          [this](StateReader& reader) {
            const auto index = reader.ReadInteger();
            if (!index || *index < 0 || *index >= kCalendarCount) return false;
            session_.SetCalendar(static_cast<Calendar>(*index));
            return true;
          }};
}

// The text tells which eclipse it was. One that the engine does not have stays as it stands, until
// there is another.
StateRecord frmMain::EclipseTextRecord() {
  return {[this] { return TextRecord(search.lblActualEclipseData.Caption()); },
          [this](StateReader& reader) {
            const auto text = reader.ReadText();
            if (!text || text->size() > kLongestEclipseText) return false;
            if (const auto eclipse = SearchSection::EclipseOf(*text)) {
              session_.TakeEclipse(*eclipse);
            } else {
              search.lblActualEclipseData.SetCaption(*text);
            }
            return true;
          }};
}

std::vector<StateRecord> frmMain::StateRecords() {
  frmLogPreferences& preferences = log.log_preferences;
  return {
      MomentRecord(),
      CalendarRecord(),
      RecordOf(move.optMoveDirection[0], move.optMoveDirection[1]),
      RecordOf(entry.optPlus, entry.optMinus),
      RecordOf(search.optNext, search.optPrevious),
      RecordOf(time.optGreenwich, time.optLocal),
      RecordOf(move.cboMoveStep),
      TargetRecord(search),
      RecordOf(time.cboTimeZone),
      RecordOf(move.cboRefreshPeriod),
      RecordOf(move.chkRepeatedly),
      RecordOf(log.chkLog),
      EclipseTextRecord(),
      MarkerRecord(),
      RecordOf(preferences.optLogFormat[0], preferences.optLogFormat[1]),
      RecordOf(preferences.chkIncludeCE),
      RecordOf(preferences.chkIncludeJC),
      RecordOf(preferences.chkIncludeARC),
      RecordOf(preferences.chkIncludeSD),
      RecordOf(preferences.chkIncludeLLT),
      RecordOf(preferences.chkIncludeKSG),
      RecordOf(preferences.chkIncludeCJD),
      RecordOf(preferences.chkIncludeAJD),
      RecordOf(preferences.chkIncludePhaseOfMoonAndIllumination),
      RecordOf(preferences.chkIncludeLunationAndAgeOfMoon),
      RecordOf(preferences.chkIncludeOLWC),
      RecordOf(calendar.cboMonthCalendar),
  };
}

void frmMain::RestoreState() {
  state_file_ = desktop_.StateFile();
  if (!state_file_) return;
  const ScopedFlag restoring(session_.blnRestoring);
  if (const auto text = ReadTextFile(*state_file_, kLargestFile)) {
    ReadState(StateRecords(), *text);
  }
}

std::string frmMain::WriteState() {
  if (!state_file_) return {};
  return WriteTextFile(*state_file_, StateText(StateRecords()));
}

// At the end of the program, which no error may put off: the user is told of all in one message.
void frmMain::SaveAll() {
  const std::string state_error = WriteState();
  const std::string log_error = log.log_window.Keep();
  std::string text;
  if (!state_error.empty()) text = SaveErrorText("the state", state_error);
  if (!log_error.empty()) {
    text += (text.empty() ? "" : "\r\n") + SaveErrorText("the log", log_error);
  }
  if (text.empty()) return;
  const char* const title = state_error.empty() ? frmLog::kSaveTitle : kSaveTitle;
  desktop_.ShowMessage({text, title, MessageIcon::kExclamation});
}

void frmMain::SaveSilently() {
  WriteState();
  log.log_window.Keep();
}

void frmMain::cmdSaveState_Click() {
  const std::string error = WriteState();
  if (!error.empty()) {
    ReportSaveError(desktop_, "the state", kSaveTitle, error);
    return;
  }
  blnSaved = true;
  UpdateAvailability();
  move.TakeFocus();
  notice.ShowOver(*this, "Saved");
}

}  // namespace tarnwick
