// Log: what goes into it, and the ways to it. It owns the window of the log and that of its
// preferences.
#pragma once

#include <optional>
#include <string>

#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/form.h"
#include "help/notice.h"
#include "log/log_entry.h"
#include "log/log_preferences.h"
#include "log/log_window.h"
#include "moment/dates_section.h"
#include "moment/moon_section.h"
#include "moment/session.h"

namespace tarnwick {

class LogSection {
 public:
  LogSection(Form& form, Screen& screen, Session& session, Desktop& desktop, DatesSection& dates,
             MoonSection& moon, frmNotice& notice);

  CheckBox chkLog;
  Button cmdLogThisResult;
  Button cmdViewLog;
  Button cmdLogPreferences;

  frmLog log_window;
  frmLogPreferences log_preferences;

  void SetDefaults();
  void UpdateAvailability();
  // Logs a result if results are logged as they come, else keeps it for "Log this result". An empty
  // result is none, and drops the one that was kept.
  void AddLogEntry(const Logged& result);
  // There is no result to be logged any more.
  void DropPendingResult();

 private:
  void chkLog_Click();
  void cmdLogThisResult_Click();
  void cmdViewLog_Click();
  void cmdLogPreferences_Click();
  LogEntry WholeEntryOf(const Logged& result) const;
  LogEntry Chosen(LogEntry entry) const;
  void KeepPending(const LogEntry& entry);
  void WriteToLog(const LogEntry& entry);
  void TakeRoomFor(const LogEntry& entry);

  Form& form_;
  Session& session_;
  Desktop& desktop_;
  DatesSection& dates_;
  MoonSection& moon_;
  // To be logged when the user asks for it: with all that was shown with it, whatever the labels
  // show by then.
  std::optional<LogEntry> pending_;
};

}  // namespace tarnwick
