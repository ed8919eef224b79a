#include "app/main_window.h"

#include <utility>

#include "calendars/date_processing.h"
#include "controls/choice.h"
#include "controls/keys.h"
#include "controls/product.h"
#include "moment/copying.h"

namespace tarnwick {

frmMain::frmMain(Desktop& desktop, Screen& screen)
    : Form(screen, "frmMain", kProgramTitle),
      desktop_(desktop),
      pictures_(desktop),
      notice(screen),
      help_window(desktop, screen),
      entry(*this, session_, desktop),
      time(entry, session_),
      dates(*this, session_, entry),
      moon(*this, session_, desktop, pictures_),
      move(*this, session_, desktop, entry, dates, Clock),
      search(*this, session_, desktop, entry, notice),
      history(*this, session_, desktop, entry, time),
      log(*this, screen, session_, desktop, dates, moon, notice),
      calendar(*this, screen, session_, desktop, entry, pictures_, notice),
      sky(*this, screen, session_, desktop, entry, notice),
      lists(*this, screen, session_, desktop, entry, sky.sky_window.place, notice) {
  picCheck.SetVisible(false);
  picCheck.SetToolTipText("The clock is running: the moment follows it");
  cmdNow.SetToolTipText("Shows the present moment and lets it follow the clock");
  cmdReset.SetToolTipText("Gives every choice of this window its first value, and shows now");
  WireSession();
  ConnectHandlers();
  AddShortcuts(screen);
  OfferToCopy();
  WatchForChanges();
}

void frmMain::WireSession() {
  Session::Hooks& hooks = session_.hooks;
  hooks.show_moment = [this] { return ShowMoment(); };
  hooks.finish = [this](const Outcome& outcome) { Finish(outcome); };
  hooks.log = [this](const Logged& result) { log.AddLogEntry(result); };
  hooks.focus_on_date = [this] { entry.TakeFocus(); };
  hooks.focus_on_move = [this] { move.TakeFocus(); };
  hooks.remember = [this] { history.Remember(); };
  hooks.activity_changed = [this] { UpdateAvailability(); };
  hooks.calendar_changed = [this] {
    dates.ShowCalendar();
    entry.ShowHint();
    sky.sky_window.Refresh();
    lists.lists_window.Refresh();
  };
  hooks.eclipse_changed = [this] {
    search.ShowEclipse();
    sky.sky_window.Refresh();
  };
  hooks.clock_changed = [this] { ShowClock(); };
}

void frmMain::ConnectHandlers() {
  cmdNow.on_click = [this] { cmdNow_Click(); };
  cmdReset.on_click = [this] { cmdReset_Click(); };
  cmdSaveState.on_click = [this] { cmdSaveState_Click(); };
  cmdHelp.on_click = [this] { help_window.Show(); };
  cmdQuit.on_click = [this] { cmdQuit_Click(); };
  Clock.on_timer = [this] { Clock_Timer(); };
}

void frmMain::AddShortcuts(const Screen& screen) {
  AddShortcut("Alt+Left", history.cmdBack);
  AddShortcut("Alt+Right", history.cmdForward);
  AddShortcut("Ctrl+K", sky.cmdSky);
  AddShortcut("Ctrl+T", lists.cmdLists);
  AddShortcut("Ctrl+L", calendar.cmdDisplayCalendar);
  AddShortcut("Ctrl+P", log.cmdLogPreferences);
  AddShortcut("Ctrl+S", cmdSaveState);
  AddShortcut("F1", cmdHelp);
  for (Form* form : screen.Forms()) form->AddShortcut("Ctrl+Q", cmdQuit);
}

void frmMain::OfferToCopy() {
  std::vector<Label*> values{&dates.lblTime[1], &moon.lblPhaseOfMoon[1], &moon.lblAgeOfMoon[1],
                             &moon.lblDeltaT[1], &search.lblActualEclipseData};
  for (const Calendar one : kCalendars) values.push_back(&dates.LabelOf(one)[1]);
  for (Label* value : values) OfferCopying(*value, dates, desktop_);
}

// The state can be saved again as soon as anything else is shown or chosen; the hint is neither.
void frmMain::WatchForChanges() {
  const auto watch = [this](Property changed) {
    if (changed != Property::kCaption && changed != Property::kValue &&
        changed != Property::kListIndex) {
      return;
    }
    blnSaved = false;
    cmdSaveState.SetEnabled(session_.IsIdle());
  };
  for (Control* control : Controls()) {
    if (control != &entry.lblEntryHint) control->Watch(watch);
  }
  for (Control* control : log.log_preferences.Controls()) control->Watch(watch);
}

void frmMain::Form_Load() {
  session_.SetMoment(PresentMoment());
  time.SelectZone(static_cast<std::int16_t>(desktop_.ReadClock().offset_minutes));
  RestoreState();
  time.StoreOffset();
  Finish({ShowMoment(), "Restore saved state on startup"});
  log.DropPendingResult();
  UpdateAvailability();
  Show();
  entry.TakeFocus();
}

void frmMain::UpdateAvailability() {
  const bool idle = session_.IsIdle();
  entry.UpdateAvailability();
  move.UpdateAvailability();
  search.UpdateAvailability();
  history.UpdateAvailability();
  log.UpdateAvailability();
  sky.sky_window.UpdateAvailability();
  lists.lists_window.UpdateAvailability();
  SetEnabled({&cmdReset, &cmdHelp, &cmdQuit}, idle);
  cmdSaveState.SetEnabled(idle && !blnSaved);
}

UniversalTime frmMain::PresentMoment() const {
  const ClockReading clock = desktop_.ReadClock();
  return NowAsAJD(clock.date, clock.time, clock.offset_minutes);
}

std::string frmMain::ShowMoment() {
  std::string summary = dates.Show();
  moon.Show();
  calendar.calendar_window.Refresh();
  sky.sky_window.Refresh();
  lists.lists_window.Refresh();
  return summary;
}

std::string frmMain::ShowPresentMoment() {
  session_.SetMoment(PresentMoment());
  return ShowMoment();
}

void frmMain::Finish(const Outcome& outcome) {
  entry.ShowHint();
  history.Remember();
  const std::string added = history.AddHistoryEntry(outcome.summary, outcome.eclipse_type);
  if (added.empty() && outcome.only_if_new) return;
  log.AddLogEntry({added, outcome.operation, outcome.description});
}

// The clock is read every few seconds as long as it runs; a repeated move sets the timer anew.
void frmMain::ShowClock() {
  constexpr int kMillisecondsPerSecond = 1000;
  const bool running = session_.IsClockRunning();
  picCheck.SetVisible(running);
  Clock.SetInterval(intClockSeconds * kMillisecondsPerSecond);
  Clock.SetEnabled(running);
}

void frmMain::Clock_Timer() {
  if (session_.IsClockRunning()) {
    ShowPresentMoment();
  } else {
    move.Clock_Timer();
  }
}

void frmMain::cmdNow_Click() {
  entry.ClearTexts();
  session_.ClearEclipse();
  session_.SetClockRunning(true);
  Outcome outcome{ShowPresentMoment(), "Now"};
  outcome.only_if_new = true;
  Finish(outcome);
  search.LeaveSameSaros();
  entry.TakeFocus();
}

void frmMain::cmdReset_Click() {
  session_.SetCalendar(kCE);
  time.SetDefaults();
  search.SetDefaults();
  entry.SetDefaults();
  move.SetDefaults();
  log.SetDefaults();
  if (log.log_preferences.IsLoaded()) {
    const Message question{"Reset log preferences also?", "Reset", MessageIcon::kQuestion,
                           MessageButtons::kYesNo};
    if (desktop_.ShowMessage(question) == MessageAnswer::kYes) log.log_preferences.SetDefaults();
  }
  cmdNow_Click();
}

void frmMain::Form_KeyPress(int& key) {
  if (key != kEscapeKey) return;
  search.GiveUp();
  sky.sky_window.GiveUp();
  move.Stop();
}

void frmMain::Form_Unload(bool& /*cancel*/) { cmdQuit_Click(); }

// A running move or search sees it at its next pass and ends.
void frmMain::cmdQuit_Click() {
  SaveAll();
  session_.End();
  desktop_.EndProgram();
}

}  // namespace tarnwick
