// Moves of the current moment by a step, once or repeatedly.
#include <cmath>
#include <initializer_list>

#include "app/main_window.h"
#include "calendars/entry_parser.h"
#include "calendars/text.h"
#include "engines/checked_arithmetic.h"
#include "navigation/step.h"

namespace tarnwick {
namespace {

// About a minute: what the displayed text loses of a moment's seconds is no new moment.
constexpr double kSameMoment = 0.0007;
constexpr int kMillisecondsPerSecond = 1000;

}  // namespace

bool frmMain::TakeUpTypedMoment(bool within_range) {
  txbDate.SetText(std::string(Trim(txbDate.Text())));
  if (txbDate.Text().empty()) return true;
  std::int16_t code = kEntryOk;
  double ajd = dblMoment;
  ParseDateEntry(txbDate.Text(), code, ajd);
  if (code != kEntryOk) {
    ReportDateEntryError(code);
    SetTheFocus();
    return false;
  }
  if (std::fabs(ajd - dblMoment) < kSameMoment) return true;
  if (within_range && DateOutOfRange(ajd)) {
    SetTheFocus();
    return false;
  }
  dblMoment = ajd;
  lngEclipseLunation = kNoEclipse;
  DisplayTime();
  DisplayAllDates();
  return true;
}

std::string frmMain::MoveOperation() const {
  return std::string("Move") + (optMoveDirection[0].Value() ? " forward " : " back ") +
         cboMoveStep.Text() + (chkRepeatedly.Value() ? " repeatedly." : ".");
}

void frmMain::cmdMove_Click() {
  const double start = dblMoment;
  try {
    if (!TakeUpTypedMoment(false)) return;
    ClearEclipse();
    const std::string operation = MoveOperation();
    blnRepeating = chkRepeatedly.Value();
    StopClock();
    if (blnRepeating) BeginRepeatedMove();
    const std::string summary = RunMove();
    if (blnEnding) return;
    AddLogEntry(AddHistoryEntry(summary, 0), operation, "");
  } catch (const RuntimeError& error) {
    dblMoment = start;
    blnRepeating = false;
    DisplayMoment();
    desktop_.ShowMessage({error.what(), Caption(), MessageIcon::kExclamation});
  }
  EndMove();
}

void frmMain::BeginRepeatedMove() {
  EnableDisableCommands(false);
  fraHistory.SetEnabled(false);
  cmdQuit.SetEnabled(false);
  cmdPauseResume.SetCaption("Pause");
  blnPaused = false;
  lblRefreshPeriod.SetEnabled(false);
  cboRefreshPeriod.SetEnabled(false);
  fraStopPauseResume.SetVisible(true);
  cmdStop.SetFocus();
  Clock.SetEnabled(false);
  SetClockToRefreshPeriod();
  Clock.SetEnabled(true);
}

// Makes the steps as they come due and returns the last date. In between it sleeps until something
// happens; ticks, Pause, Resume and Stop come in meanwhile and speak to it by flags.
std::string frmMain::RunMove() {
  std::string summary;
  blnStepDue = true;
  do {
    if (blnStepDue) {
      summary = MakeStep();
      blnStepDue = false;
    }
    if (RangeExceeded()) break;
    desktop_.Yield(blnRepeating ? YieldMode::kWait : YieldMode::kPoll);
    while (blnPaused) desktop_.Yield(YieldMode::kWait);
  } while (blnRepeating);
  return summary;
}

std::string frmMain::MakeStep() {
  const int step = cboMoveStep.ListIndex();
  const std::string& olw = lblOstrelLWCDate[1].Caption();
  dblMoment = StepMoment(step, optMoveDirection[0].Value(), UniversalTime(dblMoment),
                         ReadingOffset(), std::string_view(olw).substr(0, olw.find(' ')))
                  .days;
  intCalendar = StepCalendar(step).value_or(intCalendar);
  std::string summary = DisplayMoment();
  CopyDateToEntryBox();
  return summary;
}

bool frmMain::RangeExceeded() {
  const bool late = dblMoment > kUpperLimit;
  if (dblMoment >= kLowerLimit && !late) return false;
  if (blnRepeating) cmdStop_Click();
  desktop_.ShowMessage({late ? "Latest date exceeded." : "Earliest date exceeded.", "Out of range",
                        MessageIcon::kExclamation});
  return true;
}

void frmMain::EndMove() {
  fraStopPauseResume.SetVisible(false);
  Clock.SetInterval(intClockSeconds * kMillisecondsPerSecond);
  Clock.SetEnabled(false);
  EnableDisableCommands(true);
  fraHistory.SetEnabled(true);
  cmdQuit.SetEnabled(true);
  cmdViewLog.SetEnabled(true);
  lblRefreshPeriod.SetEnabled(true);
  cboRefreshPeriod.SetEnabled(true);
  FocusOnMove();
}

void frmMain::EnableDisableCommands(bool enable) {
  for (Control* control :
       std::initializer_list<Control*>{&fraMove, &cmdMove, &fraConvert, &cmdCompute, &cmdClearDate,
                                       &fraSearch, &cmdSearch, &cmdHelp, &cmdReset}) {
    control->SetEnabled(enable);
  }
  cmdViewLog.SetEnabled(enable && !log_window.IsEmpty());
  cmdLogThisResult.SetEnabled(enable && !chkLog.Value());
}

void frmMain::FocusOnMove() {
  if (cmdMove.Enabled()) {
    cmdMove.SetFocus();
  } else {
    cmdQuit.SetFocus();
  }
}

void frmMain::SetClockToRefreshPeriod() {
  Clock.SetInterval(static_cast<int>(
      std::lround(LeadingNumber(cboRefreshPeriod.Text()) * kMillisecondsPerSecond)));
}

void frmMain::cmdStop_Click() {
  blnRepeating = false;
  blnPaused = false;
  fraStopPauseResume.SetVisible(false);
  Clock.SetEnabled(true);
}

void frmMain::cmdPauseResume_Click() {
  blnPaused = !blnPaused;
  cmdPauseResume.SetCaption(blnPaused ? "Resume" : "Pause");
  lblRefreshPeriod.SetEnabled(blnPaused);
  cboRefreshPeriod.SetEnabled(blnPaused);
  if (!blnPaused) SetClockToRefreshPeriod();
  Clock.SetEnabled(!blnPaused);
  (blnPaused ? cmdPauseResume : cmdStop).SetFocus();
}

void frmMain::cboRefreshPeriod_Click() {
  if (!blnPaused) return;
  SetClockToRefreshPeriod();
  cmdPauseResume.SetFocus();
}

void frmMain::cboMoveStep_Click() { FocusOnMove(); }

void frmMain::chkRepeatedly_Click() {
  chkRepeatedly.SetForeColor(chkRepeatedly.Value() ? kSelectedColor : kUnselectedColor);
  FocusOnMove();
}

void frmMain::optMoveDirection_Click(int index) {
  const auto chosen = static_cast<std::size_t>(index);
  ShowChoice(optMoveDirection[chosen], optMoveDirection[1 - chosen]);
  FocusOnMove();
}

}  // namespace tarnwick
