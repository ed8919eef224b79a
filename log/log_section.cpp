#include "log/log_section.h"

#include <utility>

#include "controls/choice.h"
#include "controls/product.h"
#include "engines/checked_arithmetic.h"

namespace tarnwick {
namespace {

constexpr int kLogBelowLabel = 800;  // twips

// The text of the log can take no more.
struct LogFull {};

}  // namespace

LogSection::LogSection(Form& form, Screen& screen, Session& session, Desktop& desktop,
                       DatesSection& dates, MoonSection& moon, frmNotice& notice)
    : chkLog(form, "chkLog", "Log all results"),
      cmdLogThisResult(form, "cmdLogThisResult", "Log this result"),
      cmdViewLog(form, "cmdViewLog", "View log"),
      cmdLogPreferences(form, "cmdLogPreferences", "Set log preferences"),
      log_window(desktop, screen, notice),
      log_preferences(screen),
      form_(form),
      session_(session),
      desktop_(desktop),
      dates_(dates),
      moon_(moon) {
  chkLog.SetToolTipText("Every result goes to the log as it is found");
  cmdLogThisResult.SetToolTipText("Adds the last result to the log, as it was shown");
  ShowChoice(chkLog);
  chkLog.on_click = [this] { chkLog_Click(); };
  cmdLogThisResult.on_click = [this] { cmdLogThisResult_Click(); };
  cmdViewLog.on_click = [this] { cmdViewLog_Click(); };
  cmdLogPreferences.on_click = [this] { cmdLogPreferences_Click(); };
  log_window.txbText.Watch([this](Property changed) {
    if (changed == Property::kText) UpdateAvailability();
  });
  log_window.on_discarded = [this] { DropPendingResult(); };
  log_window.on_closed = log_preferences.on_closed = [this] { session_.hooks.focus_on_move(); };
}

void LogSection::SetDefaults() { chkLog.SetValue(false); }

void LogSection::UpdateAvailability() {
  const bool idle = session_.IsIdle();
  SetEnabled({&chkLog, &cmdLogPreferences}, idle);
  cmdLogThisResult.SetEnabled(idle && pending_);
  cmdViewLog.SetEnabled(idle && !log_window.IsEmpty());
}

void LogSection::DropPendingResult() {
  pending_.reset();
  UpdateAvailability();
}

void LogSection::AddLogEntry(const Logged& result) {
  DropPendingResult();
  if (result.result.empty()) return;
  const LogEntry entry = WholeEntryOf(result);
  if (chkLog.Value()) {
    WriteToLog(entry);
  } else {
    KeepPending(entry);
  }
}

void LogSection::KeepPending(const LogEntry& entry) {
  pending_ = entry;
  UpdateAvailability();
}

// A result with all that is shown now.
LogEntry LogSection::WholeEntryOf(const Logged& result) const {
  LogEntry entry{result.result, result.operation, result.description};
  for (const Calendar calendar : kDisplayOrder) {
    // The result is a date in the current calendar already.
    if (calendar == session_.CurrentCalendar()) continue;
    entry.dates.push_back({calendar, dates_.LabelOf(calendar)[1].Caption()});
  }
  entry.phase = moon_.lblPhaseOfMoon[1].Caption();
  entry.age = moon_.lblAgeOfMoon[1].Caption();
  return entry;
}

// What of it the preferences choose now.
LogEntry LogSection::Chosen(LogEntry entry) const {
  const frmLogPreferences& chosen = log_preferences;
  entry.layout = chosen.Layout();
  std::erase_if(entry.dates,
                [&](const LogDate& date) { return !chosen.IncludeOf(date.calendar).Value(); });
  if (!chosen.chkIncludePhaseOfMoonAndIllumination.Value()) entry.phase.reset();
  if (!chosen.chkIncludeLunationAndAgeOfMoon.Value()) entry.age.reset();
  return entry;
}

// What was written before an error stays in the log.
void LogSection::WriteToLog(const LogEntry& entry) {
  log_window.Load();
  std::string text = log_window.txbText.Text();
  const auto append = [&text](std::string_view piece) {
    text += piece;
    if (!frmLog::IsTooLong(text)) return;
    text.resize(text.size() - piece.size());
    throw LogFull();
  };
  try {
    if (text.empty()) append(std::string(kProgramTitle) + "\r\n" + kWebPage + "\r\n\r\n");
    WriteLogEntry(Chosen(entry), append);
    log_window.ShowText(text);
  } catch (const LogFull&) {
    log_window.ShowText(text);
    TakeRoomFor(entry);
  } catch (const RuntimeError& error) {
    log_window.ShowText(text);
    desktop_.ShowMessage({error.what(), "Error when adding log entry.", MessageIcon::kExclamation});
  }
}

// The entry found the log full.
void LogSection::TakeRoomFor(const LogEntry& entry) {
  const Message question{"Log is full.  Clear log?", "", MessageIcon::kQuestion,
                         MessageButtons::kYesNo};
  if (desktop_.ShowMessage(question) == MessageAnswer::kYes) log_window.cmdClear_Click();
  if (log_window.IsEmpty()) {
    WriteToLog(entry);
  } else {
    KeepPending(entry);
  }
}

void LogSection::chkLog_Click() { ShowChoice(chkLog); }

void LogSection::cmdLogThisResult_Click() {
  if (!pending_) return;
  const LogEntry entry = *pending_;
  DropPendingResult();
  WriteToLog(entry);
}

void LogSection::cmdViewLog_Click() {
  Rectangle place = log_window.Bounds();
  place.left = form_.Bounds().left;
  place.top = form_.Bounds().top + dates_.lblOstrelLWCDate[1].Bounds().top + kLogBelowLabel;
  log_window.SetBounds(place);
  log_window.Show();
}

void LogSection::cmdLogPreferences_Click() { log_preferences.Show(); }

}  // namespace tarnwick
