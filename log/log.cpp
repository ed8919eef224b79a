// The log, as the main window writes and opens it.
#include "app/main_window.h"
#include "controls/product.h"
#include "engines/checked_arithmetic.h"
#include "log/log_entry.h"

namespace tarnwick {
namespace {

constexpr int kLogBelowLabel = 800;  // twips

// The order in which an entry names the calendars.
constexpr Calendar kLogOrder[] = {kCE, kJC, kARC, kSD, kLLT, kKSG, kOLW, kCJD, kAJD};

// The text of the log can take no more.
struct LogFull {};

}  // namespace

void frmMain::AddLogEntry(const std::string& result, const std::string& operation,
                          const std::string& extra) {
  if (result.empty()) {
    cmdLogThisResult.SetEnabled(false);
    return;
  }
  if (!blnLogging) {
    strPendingResult = {result, operation, extra};
    cmdLogThisResult.SetEnabled(true);
    return;
  }
  strPendingResult = {};
  cmdLogThisResult.SetEnabled(false);
  WriteToLog(LogEntryFor(result, operation, extra));
}

LogEntry frmMain::LogEntryFor(const std::string& result, const std::string& operation,
                              const std::string& extra) {
  LogEntry entry{result, operation, extra, log_preferences.Layout(), {}, {}, {}};
  for (const Calendar calendar : kLogOrder) {
    // The result is a date in the current calendar already.
    if (calendar == intCalendar || !log_preferences.IncludeOf(calendar).Value()) continue;
    entry.dates.push_back({AbbreviationOf(calendar), DateLabelOf(calendar)[1].Caption()});
  }
  if (log_preferences.chkIncludePhaseOfMoonAndIllumination.Value()) {
    entry.phase = lblPhaseOfMoon[1].Caption();
  }
  if (log_preferences.chkIncludeLunationAndAgeOfMoon.Value()) {
    entry.age = lblAgeOfMoon[1].Caption();
  }
  return entry;
}

// What was written before an error stays in the log.
void frmMain::WriteToLog(const LogEntry& entry) {
  log_window.Load();
  std::string text = log_window.txbText.Text();
  const auto append = [&text](std::string_view piece) {
    text += piece;
    if (!frmLog::IsTooLong(text)) return;
    text.resize(text.size() - piece.size());
    throw LogFull();
  };
  try {
    if (text.empty()) append(Caption() + "\r\n" + kWebPage + "\r\n\r\n");
    WriteLogEntry(entry, append);
    log_window.ShowText(text);
    cmdViewLog.SetEnabled(!log_window.IsEmpty());
  } catch (const LogFull&) {
    log_window.ShowText(text);
    const Message question{"Log is full.  Clear log?", "", MessageIcon::kQuestion,
                           MessageButtons::kYesNo};
    if (desktop_.ShowMessage(question) == MessageAnswer::kYes) log_window.cmdClear_Click();
  } catch (const RuntimeError& error) {
    log_window.ShowText(text);
    desktop_.ShowMessage({error.what(), "Error when adding log entry.", MessageIcon::kExclamation});
  }
}

void frmMain::chkLog_Click() {
  blnLogging = chkLog.Value();
  chkLog.SetForeColor(blnLogging ? kSelectedColor : kUnselectedColor);
}

void frmMain::cmdLogThisResult_Click() {
  const bool logging = blnLogging;
  blnLogging = true;
  const std::array<std::string, 3> pending = strPendingResult;
  AddLogEntry(pending[0], pending[1], pending[2]);
  blnLogging = logging;
  cmdLogThisResult.SetEnabled(false);
}

void frmMain::cmdViewLog_Click() {
  if (log_window.IsEmpty()) {
    desktop_.ShowMessage({"Log is empty", "View Log", MessageIcon::kInformation});
    RefreshFunctions();
    return;
  }
  Rectangle place = log_window.Bounds();
  place.left = Bounds().left;
  place.top = Bounds().top + lblOstrelLWCDate[1].Bounds().top + kLogBelowLabel;
  log_window.SetBounds(place);
  log_window.Show();
}

void frmMain::cmdLogPreferences_Click() { log_preferences.Show(); }

}  // namespace tarnwick
