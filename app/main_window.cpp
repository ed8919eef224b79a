#include "app/main_window.h"

#include "controls/product.h"
#include "lunation_view/month_calendar.h"
#include "moment/time_zone.h"
#include "navigation/step.h"

namespace tarnwick {
void ShowChoice(Control& chosen, Control& other) {
  chosen.SetForeColor(kSelectedColor);
  other.SetForeColor(kUnselectedColor);
}

frmMain::frmMain(Desktop& desktop, Screen& screen)
    : Form(screen, "frmMain", "Tarnwick"),
      log_window(desktop, screen, *this),
      log_preferences(screen, *this),
      calendar_window(desktop, screen, *this),
      help_window(desktop, screen),
      notice(screen),
      desktop_(desktop),
      date_labels_{&lblCommonEraDate,           &lblJulianCalendarDate,     &lblArchetypesDate,
                   &lblSarvikDolmerSLCDate,     &lblLTCLunarDate,           &lblKSGDate,
                   &lblChronologicalJulianDate, &lblAstronomicalJulianDate, &lblOstrelLWCDate} {
  NameLabels();
  ConnectHandlers();
}

void frmMain::NameLabels() {
  for (const Calendar calendar : kCalendars) {
    DateLabelOf(calendar)[0].SetCaption(std::string(AbbreviationOf(calendar)));
  }
  lblTime[0].SetCaption("Time");
  lblPhaseOfMoon[0].SetCaption("Phase");
  lblAgeOfMoon[0].SetCaption("Age");
  lblDeltaT[0].SetCaption("Delta T");
  optMoveDirection[0].SetCaption("forward");
  optMoveDirection[1].SetCaption("back");
}

void frmMain::ConnectHandlers() {
  cmdCompute.on_click = [this] { cmdCompute_Click(); };
  cmdClearDate.on_click = [this] { cmdClearDate_Click(); };
  cmdNow.on_click = [this] { cmdNow_Click(); };
  cmdQuit.on_click = [this] { cmdQuit_Click(); };
  txbDate.on_key_press = [this](int& key) { txbDate_KeyPress(key); };
  txbDate.on_lost_focus = [this] { txbDate_LostFocus(); };
  txbPlusMinus.on_key_press = [this](int& key) { txbPlusMinus_KeyPress(key); };
  optPlus.on_click = [this] { optPlus_Click(); };
  optMinus.on_click = [this] { optMinus_Click(); };
  optGreenwich.on_click = [this] { optGreenwich_Click(); };
  optLocal.on_click = [this] { optLocal_Click(); };
  cboTimeZone.on_click = [this] { cboTimeZone_Click(); };
  Clock.on_timer = [this] { Clock_Timer(); };
  cmdMove.on_click = [this] { cmdMove_Click(); };
  cmdStop.on_click = [this] { cmdStop_Click(); };
  cmdPauseResume.on_click = [this] { cmdPauseResume_Click(); };
  cboMoveStep.on_click = [this] { cboMoveStep_Click(); };
  cboRefreshPeriod.on_click = [this] { cboRefreshPeriod_Click(); };
  chkRepeatedly.on_click = [this] { chkRepeatedly_Click(); };
  optMoveDirection[0].on_click = [this] { optMoveDirection_Click(0); };
  optMoveDirection[1].on_click = [this] { optMoveDirection_Click(1); };
  cmdSearch.on_click = [this] { cmdSearch_Click(); };
  cboTarget.on_click = [this] { cboTarget_Click(); };
  optNext.on_click = [this] { optNext_Click(); };
  optPrevious.on_click = [this] { optPrevious_Click(); };
  cboHistory.on_click = [this] { cboHistory_Click(); };
  cmdReset.on_click = [this] { cmdReset_Click(); };
  chkLog.on_click = [this] { chkLog_Click(); };
  cmdLogThisResult.on_click = [this] { cmdLogThisResult_Click(); };
  cmdViewLog.on_click = [this] { cmdViewLog_Click(); };
  cmdLogPreferences.on_click = [this] { cmdLogPreferences_Click(); };
  cmdSaveState.on_click = [this] { cmdSaveState_Click(); };
  cboMonthCalendar.on_click = [this] { calendar_window.Refresh(); };
  cmdDisplayCalendar.on_click = [this] { cmdDisplayCalendar_Click(); };
  cmdHelp.on_click = [this] { help_window.Show(); };

  const auto connect = [this](DateLabel& label, void (frmMain::*handler)(int)) {
    label[0].on_click = [this, handler] { (this->*handler)(0); };
    label[1].on_click = [this, handler] { (this->*handler)(1); };
  };
  connect(lblCommonEraDate, &frmMain::lblCommonEraDate_Click);
  connect(lblJulianCalendarDate, &frmMain::lblJulianCalendarDate_Click);
  connect(lblArchetypesDate, &frmMain::lblArchetypesDate_Click);
  connect(lblSarvikDolmerSLCDate, &frmMain::lblSarvikDolmerSLCDate_Click);
  connect(lblLTCLunarDate, &frmMain::lblLTCLunarDate_Click);
  connect(lblKSGDate, &frmMain::lblKSGDate_Click);
  connect(lblOstrelLWCDate, &frmMain::lblOstrelLWCDate_Click);
  connect(lblChronologicalJulianDate, &frmMain::lblChronologicalJulianDate_Click);
  connect(lblAstronomicalJulianDate, &frmMain::lblAstronomicalJulianDate_Click);
  lblTime[1].on_click = [this] { lblTime_Click(); };
}

void frmMain::Form_Load() {
  SetCaption(Caption() + " " + kVersion);
  Initialise();
  intCalendar = kCE;
  MarkCurrentCalendar();
  EnableDisableFunctions(true);
  cmdQuit.SetEnabled(true);
  cmdLogPreferences.SetVisible(true);
  RestoreState();
  cmdSaveState.SetEnabled(false);
  AddLogEntry(AddHistoryEntry(DisplayMoment(), 0), "Restore saved state on startup", "");
  MarkCurrentCalendar();
  cmdLogThisResult.SetEnabled(false);
  Show();
  SetTheFocus();
}

// Sets the choices of a first start; each runs its handler, which sets the colours.
void frmMain::Initialise() {
  dblMoment = PresentMoment();
  FillLists();
  ClearValueLabels();
  intStoredOffset = TimeZoneOffsetMinutes();
  picCheck.SetVisible(false);
  fraStopPauseResume.SetVisible(false);
  lblSearching.SetVisible(false);
  optLocal.SetValue(true);
  optMoveDirection[0].SetValue(true);
  optNext.SetValue(true);
  optPlus.SetValue(true);
  chkRepeatedly_Click();
  chkLog_Click();
}

void frmMain::FillLists() {
  blnRestoring = true;  // there is no moment on display yet that a zone could move
  for (int i = 0; i < kTimeZoneCount; ++i) cboTimeZone.AddItem(TimeZoneText(i));
  cboTimeZone.SetListIndex(kGmtTimeZone);
  blnRestoring = false;
  for (int i = 0; i < kStepCount; ++i) cboMoveStep.AddItem(std::string(StepText(i)));
  cboMoveStep.SetListIndex(kOneDayStep);
  for (const TargetRow& row : kTargets) cboTarget.AddItem(std::string(row.text), row.phase);
  cboTarget.SetListIndex(kTotalSolarTarget);
  for (const char* const seconds : {"0.2", "0.5", "1", "2", "5"}) cboRefreshPeriod.AddItem(seconds);
  cboRefreshPeriod.SetListIndex(kOneSecondPeriod);
  for (const std::string_view dates : kMonthCalendars) cboMonthCalendar.AddItem(std::string(dates));
  cboMonthCalendar.SetListIndex(0);
}

void frmMain::ClearValueLabels() {
  for (DateLabel* label : date_labels_) (*label)[1].SetCaption("");
  lblTime[1].SetCaption("");
  for (DateLabel* label : {&lblPhaseOfMoon, &lblAgeOfMoon, &lblDeltaT}) {
    (*label)[1].SetCaption("");
    (*label)[1].SetForeColor(kResultColor);
  }
  picMoon.SetPicture({});
  lblActualEclipseData.SetCaption("");
  lblActualEclipseData.SetForeColor(kResultColor);
}

void frmMain::EnableDisableFunctions(bool enable) {
  for (Control* control : std::initializer_list<Control*>{
           &cmdMove, &cmdCompute, &cmdClearDate, &cmdReset, &cmdSearch, &cmdLogPreferences,
           &cmdLogThisResult, &chkLog, &cmdSaveState, &txbDate, &txbPlusMinus}) {
    control->SetEnabled(enable);
  }
  cmdViewLog.SetEnabled(enable && !log_window.IsEmpty());
  FocusOnMove();
}

void frmMain::RefreshFunctions() {
  if (!IsBusy()) EnableDisableFunctions(true);
}

void frmMain::SetTheFocus() {
  if (!IsActive() || !fraConvert.Enabled()) return;
  if (!txbDate.Enabled()) {
    cmdQuit.SetFocus();
    return;
  }
  txbDate.SetFocus();
  txbDate.MoveCaretToEnd();
}

void frmMain::cmdDisplayCalendar_Click() {
  calendar_window.ShowCurrentLunation();
  calendar_window.Show();
}

void frmMain::Form_Unload(bool& /*cancel*/) {
  if (log_window.IsLoaded()) log_window.Close();
  cmdQuit_Click();
}

// A running move or search sees the flags at its next pass and ends.
void frmMain::cmdQuit_Click() {
  SaveState();
  blnEnding = true;
  blnRepeating = false;
  blnPaused = false;
  blnSearching = false;
  desktop_.EndProgram();
}

}  // namespace tarnwick
