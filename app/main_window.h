// The main window: it makes the sections that share the current moment, wires them to one another,
// and owns what belongs to none of them: Now, Reset, Save state, Help, Quit and the timer.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/form.h"
#include "controls/picture_files.h"
#include "help/help_window.h"
#include "help/notice.h"
#include "lists/lists_section.h"
#include "log/log_section.h"
#include "lunation_view/calendar_section.h"
#include "moment/dates_section.h"
#include "moment/entry_section.h"
#include "moment/moon_section.h"
#include "moment/session.h"
#include "moment/time_section.h"
#include "navigation/history_section.h"
#include "navigation/move_section.h"
#include "navigation/search_section.h"
#include "sky/sky_section.h"
#include "state/state_record.h"

namespace tarnwick {

class frmMain final : public Form {
 public:
  frmMain(Desktop& desktop, Screen& screen);

 private:
  Desktop& desktop_;
  Session session_;
  PictureFiles pictures_;

 public:
  frmNotice notice;
  frmHelp help_window;

  Timer Clock{*this, "Clock"};  // of the clock after Now, and of repeated moves
  EntrySection entry;
  TimeSection time;
  DatesSection dates;
  MoonSection moon;
  MoveSection move;
  SearchSection search;
  HistorySection history;
  LogSection log;
  CalendarSection calendar;
  SkySection sky;
  ListsSection lists;

  Button cmdNow{entry.fraConvert, "cmdNow", "Now"};
  Picture picCheck{entry.fraConvert, "picCheck"};  // the moment shown is the present one
  Button cmdReset{*this, "cmdReset", "Reset"};
  Button cmdSaveState{*this, "cmdSaveState", "Save state"};
  Button cmdHelp{*this, "cmdHelp", "Help"};
  Button cmdQuit{*this, "cmdQuit", "Quit"};

  void Form_Load() override;
  void Form_Unload(bool& cancel) override;
  void Form_KeyPress(int& key) override;

  // What Quit saves, where nobody can be told of an error any more.
  void SaveSilently();

 private:
  void WireSession();
  void ConnectHandlers();
  void AddShortcuts(const Screen& screen);
  void OfferToCopy();
  void WatchForChanges();
  void UpdateAvailability();

  UniversalTime PresentMoment() const;
  // Time, all dates, the Moon and the page of the lunation; returns the moment in the current
  // calendar, in short form.
  std::string ShowMoment();
  std::string ShowPresentMoment();
  void Finish(const Outcome& outcome);
  void ShowClock();
  void Clock_Timer();

  void cmdNow_Click();
  void cmdReset_Click();
  void cmdQuit_Click();

  // Saved state (saved_state.cpp).
  void cmdSaveState_Click();
  void RestoreState();
  std::string WriteState();  // what went wrong, empty if nothing did
  void SaveAll();
  // What is kept from one run to the next, in the order of the file.
  std::vector<StateRecord> StateRecords();
  StateRecord MomentRecord();
  StateRecord CalendarRecord();
  StateRecord EclipseTextRecord();

  std::int16_t intClockSeconds = 5;                  // between two readings of the running clock
  std::optional<std::filesystem::path> state_file_;  // nothing: no state is kept
  bool blnSaved = false;                             // nothing has been shown or chosen since
};

}  // namespace tarnwick
