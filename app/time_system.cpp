// Greenwich or local time, the time zone, and the running clock.
#include "app/main_window.h"
#include "calendars/date_processing.h"
#include "calendars/text.h"
#include "moment/time_zone.h"

namespace tarnwick {
namespace {

constexpr int kMinutesPerDay = 1440;
constexpr int kOLWShiftMinutes = 360;  // an OLW day begins at 6 o'clock

std::string ClockText(int minutes) {
  return TwoDigits(minutes / 60) + ":" + TwoDigits(minutes % 60);
}

// The minutes of the day of a clock's text, "HH:MM:SS".
int ClockMinutes(std::string_view time) {
  return static_cast<int>(60 * LeadingNumber(time.substr(0, 2)) + LeadingNumber(time.substr(3, 2)));
}

}  // namespace

std::int16_t frmMain::TimeZoneOffsetMinutes() const { return TimeZoneOffset(cboTimeZone.Text()); }

int frmMain::ReadingOffset() const { return optGreenwich.Value() ? 0 : TimeZoneOffsetMinutes(); }

double frmMain::PresentMoment() const {
  const ClockReading clock = desktop_.ReadClock();
  return NowAsAJD(clock.date, clock.time, clock.offset_minutes).days;
}

// The time that the computer's clock shows, taken for that of the chosen zone.
std::string frmMain::ClockTimeText() const {
  int minutes = ClockMinutes(desktop_.ReadClock().time);
  if (optGreenwich.Value()) minutes += kMinutesPerDay - TimeZoneOffsetMinutes();
  if (intCalendar == kOLW) minutes += kMinutesPerDay - kOLWShiftMinutes;
  return ClockText(minutes % kMinutesPerDay);
}

// Common to both time systems: the moment stays, only its reading changes.
void frmMain::ShowTimeSystem() {
  if (blnRestoringHistory) return;
  DisplayMoment();
  RenewCopiedDate();
  SetTheFocus();
}

void frmMain::optGreenwich_Click() {
  ShowChoice(optGreenwich, optLocal);
  ShowTimeSystem();
}

void frmMain::optLocal_Click() {
  ShowChoice(optLocal, optGreenwich);
  ShowTimeSystem();
}

// Keeps the local date and time on display, so that the moment itself moves.
void frmMain::cboTimeZone_Click() {
  if (cboTimeZone.ListIndex() < 0 || blnRestoring) return;
  lblActualEclipseData.SetCaption("");
  const std::int16_t offset = TimeZoneOffsetMinutes();
  dblMoment += static_cast<double>(intStoredOffset - offset) / kMinutesPerDay;
  intStoredOffset = offset;
  const std::string summary = DisplayMoment();
  RenewCopiedDate();
  if (!blnRestoringHistory) {
    const std::string entry = AddHistoryEntry(summary, 0);
    if (!entry.empty()) AddLogEntry(entry, "Timezone changed.", "");
  }
  SetTheFocus();
}

void frmMain::cmdNow_Click() {
  txbDate.SetText("");
  txbPlusMinus.SetText("");
  ClearEclipse();
  if (blnRepeating) cmdStop_Click();
  blnClockRunning = true;
  picCheck.SetVisible(true);
  Clock.SetInterval(intClockSeconds * 1000);
  Clock.SetEnabled(true);
  const std::string entry = AddHistoryEntry(ShowPresentMoment(), 0);
  if (!entry.empty()) AddLogEntry(entry, "Now", "");
  // An eclipse to take the series of is no longer on display.
  if (cboTarget.ListIndex() == kSameSarosTarget) cboTarget.SetListIndex(kAnyEclipseTarget);
  EnableDisableFunctions(true);
  SetTheFocus();
}

void frmMain::StopClock() {
  blnClockRunning = false;
  picCheck.SetVisible(false);
  Clock.SetEnabled(false);
}

std::string frmMain::ShowPresentMoment() {
  dblMoment = PresentMoment();
  return DisplayMoment();
}

void frmMain::Clock_Timer() {
  if (blnClockRunning) {
    ShowPresentMoment();
  } else if (blnRepeating) {
    blnStepDue = true;
  }
}

}  // namespace tarnwick
