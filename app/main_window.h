#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "calendars/calendar_table.h"
#include "controls/control_array.h"
#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/form.h"
#include "help/help_window.h"
#include "help/notice.h"
#include "log/log_entry.h"
#include "log/log_preferences.h"
#include "log/log_window.h"
#include "lunation_view/calendar_window.h"
#include "navigation/target.h"
#include "state/state_record.h"

namespace tarnwick {

inline constexpr double kLowerLimit = 552283.0;   // AJD, the smallest accepted
inline constexpr double kUpperLimit = 3912515.0;  // AJD, noon of 6000-01-01 CE, still accepted

inline constexpr Color kSelectedColor{255, 255, 255};
inline constexpr Color kUnselectedColor{200, 200, 200};
inline constexpr Color kResultColor{0, 0, 128};  // navy: the Moon and results

inline constexpr int kOneSecondPeriod = 2;             // its place in the list of refresh periods
inline constexpr std::int32_t kNoEclipse = -10000000;  // no lunation has that number

// The main window. It holds the one current moment and shows it in every calendar.
class frmMain final : public Form {
 public:
  using DateLabel = ControlArray<Label, 2>;  // 0: what it is, 1: the value

  frmMain(Desktop& desktop, Screen& screen);

  // Convert: the entry of a moment and the time system it is read in.
  Frame fraConvert{*this, "fraConvert", "Convert"};
  TextBox txbDate{fraConvert, "txbDate"};
  OptionGroup grpPlusMinus;
  OptionButton optPlus{fraConvert, "optPlus", grpPlusMinus, "plus"};
  OptionButton optMinus{fraConvert, "optMinus", grpPlusMinus, "minus"};
  TextBox txbPlusMinus{fraConvert, "txbPlusMinus"};
  Label lblDays{fraConvert, "lblDays", "days"};
  Button cmdCompute{fraConvert, "cmdCompute", "Compute"};
  Button cmdClearDate{fraConvert, "cmdClearDate", "Clear"};
  Button cmdNow{fraConvert, "cmdNow", "Now"};
  Picture picCheck{fraConvert, "picCheck"};  // the moment shown is the present one
  Label lblTimeSystem{fraConvert, "lblTimeSystem", "Time system"};
  OptionGroup grpTimeSystem;
  OptionButton optGreenwich{fraConvert, "optGreenwich", grpTimeSystem, "Greenwich"};
  OptionButton optLocal{fraConvert, "optLocal", grpTimeSystem, "local"};
  Label lblTimeZone{fraConvert, "lblTimeZone", "Time zone"};
  ComboBox cboTimeZone{fraConvert, "cboTimeZone"};

  // One moment, nine ways.
  DateLabel lblTime{*this, "lblTime"};
  DateLabel lblCommonEraDate{*this, "lblCommonEraDate"};
  DateLabel lblJulianCalendarDate{*this, "lblJulianCalendarDate"};
  DateLabel lblArchetypesDate{*this, "lblArchetypesDate"};
  DateLabel lblSarvikDolmerSLCDate{*this, "lblSarvikDolmerSLCDate"};
  DateLabel lblLTCLunarDate{*this, "lblLTCLunarDate"};
  DateLabel lblKSGDate{*this, "lblKSGDate"};
  DateLabel lblOstrelLWCDate{*this, "lblOstrelLWCDate"};
  DateLabel lblChronologicalJulianDate{*this, "lblChronologicalJulianDate"};
  DateLabel lblAstronomicalJulianDate{*this, "lblAstronomicalJulianDate"};

  // The Moon.
  Picture picMoon{*this, "picMoon"};
  DateLabel lblPhaseOfMoon{*this, "lblPhaseOfMoon"};
  DateLabel lblAgeOfMoon{*this, "lblAgeOfMoon"};
  DateLabel lblDeltaT{*this, "lblDeltaT"};

  // Move.
  Frame fraMove{*this, "fraMove", "Move"};
  Frame fraMoveStep{fraMove, "fraMoveStep", "Step"};
  ComboBox cboMoveStep{fraMoveStep, "cboMoveStep"};
  Frame fraMoveDirection{fraMove, "fraMoveDirection", "Direction"};
  OptionGroup grpMoveDirection;
  ControlArray<OptionButton, 2> optMoveDirection{fraMoveDirection, "optMoveDirection",
                                                 grpMoveDirection};  // 0 forward, 1 back
  CheckBox chkRepeatedly{fraMove, "chkRepeatedly", "repeatedly"};
  Button cmdMove{fraMove, "cmdMove", "Move"};
  Frame fraStopPauseResume{*this, "fraStopPauseResume"};  // shown during a repeated move
  Button cmdStop{fraStopPauseResume, "cmdStop", "Stop"};
  Button cmdPauseResume{fraStopPauseResume, "cmdPauseResume", "Pause"};
  Label lblRefreshPeriod{*this, "lblRefreshPeriod", "seconds a step"};
  ComboBox cboRefreshPeriod{*this, "cboRefreshPeriod"};

  // Search.
  Frame fraSearch{*this, "fraSearch", "Search"};
  ComboBox cboTarget{fraSearch, "cboTarget"};
  OptionGroup grpNextPrevious;
  OptionButton optNext{fraSearch, "optNext", grpNextPrevious, "next"};
  OptionButton optPrevious{fraSearch, "optPrevious", grpNextPrevious, "previous"};
  Button cmdSearch{fraSearch, "cmdSearch", "Search"};
  Label lblSearching{*this, "lblSearching", "Searching ..."};  // shown during a long search
  Label lblActualEclipseData{*this, "lblActualEclipseData"};   // the eclipse on display

  // History.
  Frame fraHistory{*this, "fraHistory", "History"};
  ComboBox cboHistory{fraHistory, "cboHistory"};
  Button cmdReset{*this, "cmdReset", "Reset"};

  // Log.
  CheckBox chkLog{*this, "chkLog", "Log all results"};
  Button cmdLogThisResult{*this, "cmdLogThisResult", "Log this result"};
  Button cmdViewLog{*this, "cmdViewLog", "View log"};
  Button cmdLogPreferences{*this, "cmdLogPreferences", "Set log preferences"};

  Button cmdSaveState{*this, "cmdSaveState", "Save state"};
  ComboBox cboMonthCalendar{*this, "cboMonthCalendar"};  // of the lunation calendar
  Button cmdDisplayCalendar{*this, "cmdDisplayCalendar", "Lunation calendar"};
  Button cmdHelp{*this, "cmdHelp", "Help"};
  Button cmdQuit{*this, "cmdQuit", "Quit"};
  Timer Clock{*this, "Clock"};

  // The other windows, hidden until they are asked for.
  frmLog log_window;
  frmLogPreferences log_preferences;
  frmCalendar calendar_window;
  frmHelp help_window;
  frmNotice notice;

  // What the other windows ask of this one.
  double Moment() const { return dblMoment; }
  // Minutes east of Greenwich at which moments are read: 0 when Greenwich is chosen.
  int ReadingOffset() const;
  // Makes noon of a day the current moment, unless a move or a search is running.
  void TakeDay(std::int32_t day_number);
  void ReportMissingPicture(const std::filesystem::path& file);
  // Enables the functions again after another window has changed what can be done; a running move
  // or search does so itself when it ends.
  void RefreshFunctions();

  void Form_Load() override;
  void Form_Unload(bool& cancel) override;
  void Form_KeyPress(int& key) override;

  // The label array of a calendar of the calendar table.
  DateLabel& DateLabelOf(Calendar calendar) {
    return *date_labels_[static_cast<std::size_t>(calendar)];
  }

 private:
  // Start-up (main_window.cpp).
  void Initialise();
  void NameLabels();
  void ConnectHandlers();
  void FillLists();
  void ClearValueLabels();

  void EnableDisableFunctions(bool enable);
  void SetTheFocus();
  void cmdDisplayCalendar_Click();
  void cmdQuit_Click();
  bool IsBusy() const { return blnRepeating || blnSearching; }

  // Entry (convert.cpp).
  void cmdCompute_Click();
  std::string ConvertOperation(const std::string& days) const;
  // Shows a moment that the user has named, and makes the entries in history and log.
  void TakeMoment(double ajd, const std::string& operation);
  void cmdClearDate_Click();
  void txbDate_KeyPress(int& key);
  void txbPlusMinus_KeyPress(int& key);
  void txbDate_LostFocus();
  void optPlus_Click();
  void optMinus_Click();
  // Reads an entry. On success the code is 0, `ajd` the moment and the calendar of the entry the
  // current one; else `ajd` stays as it was.
  void ParseDateEntry(const std::string& text, std::int16_t& error_code, double& ajd);
  void ReportDateEntryError(std::int16_t code);
  // Whether the moment lies outside the accepted range, after telling the user.
  bool DateOutOfRange(double ajd);

  // Display (display.cpp).
  LocalCJD AJDToCJD(double ajd) const;
  std::string MomentTimeText() const;
  std::string TimeSuffix() const;
  void DisplayTime();
  // Returns the moment in the current calendar, in short form.
  std::string DisplayAllDates();
  void DisplayMoonData();
  void ShowPhaseOfMoon(double fraction, bool waxing);
  void ShowMoonPicture(double fraction, bool waxing);
  void ReportPhaseError(std::int16_t code, const std::string& routine);
  void DisplayDeltaT();
  // Time, all dates, the Moon and delta T; returns what DisplayAllDates does.
  std::string DisplayMoment();
  void MarkCurrentCalendar();
  void CopyDateToEntryBox();
  // Copies the date again if the entry box still holds what was last copied there.
  void RenewCopiedDate();
  void ClickDateLabel(Calendar calendar, int index);
  void lblCommonEraDate_Click(int index);
  void lblJulianCalendarDate_Click(int index);
  void lblArchetypesDate_Click(int index);
  void lblSarvikDolmerSLCDate_Click(int index);
  void lblLTCLunarDate_Click(int index);
  void lblKSGDate_Click(int index);
  void lblOstrelLWCDate_Click(int index);
  void lblChronologicalJulianDate_Click(int index);
  void lblAstronomicalJulianDate_Click(int index);
  void lblTime_Click();

  // Time system, zone and clock (time_system.cpp).
  std::int16_t TimeZoneOffsetMinutes() const;
  double PresentMoment() const;
  std::string ClockTimeText() const;
  void optGreenwich_Click();
  void optLocal_Click();
  void ShowTimeSystem();
  void cboTimeZone_Click();
  void cmdNow_Click();
  void StopClock();
  std::string ShowPresentMoment();
  void Clock_Timer();

  // Moves (navigation/move.cpp).
  void cmdMove_Click();
  void cmdStop_Click();
  void cmdPauseResume_Click();
  void cboMoveStep_Click();
  void cboRefreshPeriod_Click();
  void chkRepeatedly_Click();
  void optMoveDirection_Click(int index);
  void EnableDisableCommands(bool enable);
  void FocusOnMove();
  void SetClockToRefreshPeriod();
  void BeginRepeatedMove();
  void EndMove();
  std::string RunMove();
  std::string MakeStep();
  // Whether the moment has left the accepted range, after telling the user.
  bool RangeExceeded();
  std::string MoveOperation() const;
  // Makes a moment typed into the date box the current one; false if it is refused, which the user
  // has been told.
  bool TakeUpTypedMoment(bool within_range);

  // Searches (navigation/search.cpp).
  void cmdSearch_Click();
  void cboTarget_Click();
  void optNext_Click();
  void optPrevious_Click();
  struct SearchResult;
  void RunSearch(int target, const std::string& shown_eclipse);
  std::optional<SearchResult> SearchPhase(int target, const PhaseNumber& at);
  std::optional<SearchResult> SearchEclipse(int target, const PhaseNumber& at);
  std::optional<SearchResult> SearchSameSaros(const std::string& shown_eclipse);
  std::optional<SearchResult> TakeEclipse(const std::optional<FoundEclipse>& found);
  std::optional<SearchResult> SearchCoincidence();
  bool KeepSearching();
  std::string SearchOperation(int target) const;
  // The lunation and phase of the current moment; nothing, after telling the user, if the phase
  // engine's answers do not fit together.
  std::optional<PhaseNumber> PhaseOfMoment(const std::string& routine);
  void ClearEclipse();
  std::string DescribeEclipse(const EclipseRecord& record);

  // History and reset (navigation/history.cpp).
  std::string AddHistoryEntry(const std::string& date, std::int16_t eclipse_type);
  std::string HistoryText(const std::string& date) const;
  void cboHistory_Click();
  void RecallHistory();
  std::string DescribeRecalledEclipse(const PhaseNumber& at, int eclipse_type);
  void cmdReset_Click();

  // Log (log/log.cpp).
  void AddLogEntry(const std::string& result, const std::string& operation,
                   const std::string& extra);
  LogEntry LogEntryFor(const std::string& result, const std::string& operation,
                       const std::string& extra);
  void WriteToLog(const LogEntry& entry);
  void chkLog_Click();
  void cmdLogThisResult_Click();
  void cmdViewLog_Click();
  void cmdLogPreferences_Click();

  // Saved state (state/saved_state.cpp).
  void cmdSaveState_Click();
  void RestoreState();
  bool SaveState();  // false after telling the user of an error
  // What is kept from one run to the next, in the order of the file.
  std::vector<StateRecord> StateRecords();
  StateRecord MomentRecord();
  StateRecord CalendarRecord();
  StateRecord EclipseTextRecord();

  Desktop& desktop_;
  std::array<DateLabel*, kCalendarCount> date_labels_;

  double dblMoment = 0;              // the current moment, AJD in Universal Time
  Calendar intCalendar = kCE;        // the current calendar
  std::int16_t intStoredOffset = 0;  // of the zone when the moment was last set, minutes
  std::int16_t intClockSeconds = 5;  // between two readings of the running clock
  bool blnClockRunning = false;      // the moment is the present one and follows the clock
  bool blnRestoring = false;         // the saved state is being restored
  bool blnRestoringHistory = false;  // an entry of the history is being recalled
  bool blnRepeating = false;         // a repeated move is in progress
  bool blnPaused = false;            // and paused
  bool blnStepDue = false;           // the next step is to be made now
  bool blnSearching = false;         // a search is in progress
  bool blnEnding = false;            // the program ends: moves and searches stop
  bool blnAtPhase = false;           // the moment is the instant of its phase
  bool blnAddingHistory = false;     // an entry is being added to the history
  std::int32_t lngEclipseLunation = kNoEclipse;      // of the eclipse on display
  std::int16_t intEclipsePhase = 0;                  // and its phase index, 0 or 2
  std::int16_t intHistoryIndex = -1;                 // of the entry last added or selected
  bool blnLogging = false;                           // results are logged as they come
  std::array<std::string, 3> strPendingResult;       // else the last: result, operation, extra
  std::optional<std::filesystem::path> state_file_;  // nothing: no state is kept
  bool blnPictureReported = false;                   // that a picture of the Moon is missing
  std::string strCopiedEntry;                        // what was last copied to the entry box
};

// Sets two option buttons or labels apart: the chosen one white, the other grey.
void ShowChoice(Control& chosen, Control& other);

}  // namespace tarnwick
