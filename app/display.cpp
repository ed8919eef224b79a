// The current moment in every calendar, and the labels that copy a date back to the entry box.
#include "app/main_window.h"
#include "calendars/date_processing.h"
#include "calendars/date_texts.h"
#include "calendars/text.h"

namespace tarnwick {
LocalCJD frmMain::AJDToCJD(double ajd) const {
  return tarnwick::AJDToCJD(UniversalTime(ajd), ReadingOffset());
}

// The time of day of the current moment, as its current calendar counts the day.
std::string frmMain::MomentTimeText() const {
  const LocalCJD cjd = AJDToCJD(dblMoment) - RowOf(intCalendar).day_shift;
  return TimeOfDayText(SplitCJD(cjd).fraction, false);
}

std::string frmMain::TimeSuffix() const {
  const bool greenwich = optGreenwich.Value();
  if (intCalendar == kOLW) return greenwich ? " (Greenwich OLW)" : " (local OLW)";
  if (TimeZoneOffsetMinutes() == 0) return greenwich ? " (GMT=local)" : " (local=GMT)";
  return greenwich ? " (GMT)" : " (local)";
}

void frmMain::DisplayTime() {
  lblTime[1].SetCaption((blnClockRunning ? ClockTimeText() : MomentTimeText()) + TimeSuffix());
}

std::string frmMain::DisplayAllDates() {
  std::string summary;
  for (const Calendar calendar : kCalendars) {
    const DateTexts texts = DateTextsOf(calendar, UniversalTime(dblMoment), ReadingOffset());
    Label& label = DateLabelOf(calendar)[1];
    label.SetCaption(texts.long_form);
    label.SetToolTipText(texts.tool_tip);
    if (calendar == intCalendar) summary = texts.short_form;
  }
  MarkCurrentCalendar();
  return summary;
}

std::string frmMain::DisplayMoment() {
  DisplayTime();
  std::string summary = DisplayAllDates();
  DisplayMoonData();
  DisplayDeltaT();
  calendar_window.Refresh();
  return summary;
}

void frmMain::MarkCurrentCalendar() {
  for (const Calendar calendar : kCalendars) {
    DateLabelOf(calendar)[1].SetForeColor(calendar == intCalendar ? kSelectedColor
                                                                  : kUnselectedColor);
  }
}

void frmMain::CopyDateToEntryBox() { DateLabelOf(intCalendar)[1].Click(); }

void frmMain::RenewCopiedDate() {
  if (!txbDate.Text().empty() && txbDate.Text() == strCopiedEntry) CopyDateToEntryBox();
}

void frmMain::ClickDateLabel(Calendar calendar, int index) {
  intCalendar = calendar;
  MarkCurrentCalendar();
  if (index == 1) {
    const std::string& caption = DateLabelOf(calendar)[1].Caption();
    txbDate.SetText(caption.substr(0, caption.find(" (")));
    if (!IsDayCount(calendar)) lblTime_Click();
    strCopiedEntry = txbDate.Text();
  }
  SetTheFocus();
}

void frmMain::lblCommonEraDate_Click(int index) { ClickDateLabel(kCE, index); }
void frmMain::lblJulianCalendarDate_Click(int index) { ClickDateLabel(kJC, index); }
void frmMain::lblArchetypesDate_Click(int index) { ClickDateLabel(kARC, index); }
void frmMain::lblSarvikDolmerSLCDate_Click(int index) { ClickDateLabel(kSD, index); }
void frmMain::lblLTCLunarDate_Click(int index) { ClickDateLabel(kLLT, index); }
void frmMain::lblKSGDate_Click(int index) { ClickDateLabel(kKSG, index); }
void frmMain::lblOstrelLWCDate_Click(int index) { ClickDateLabel(kOLW, index); }
void frmMain::lblChronologicalJulianDate_Click(int index) { ClickDateLabel(kCJD, index); }
void frmMain::lblAstronomicalJulianDate_Click(int index) { ClickDateLabel(kAJD, index); }

void frmMain::lblTime_Click() {
  constexpr std::size_t kShortestDate = 3;
  constexpr std::size_t kTimeBeforeColon = 3;  // a blank and two digits
  std::string text = txbDate.Text();
  if (text.size() < kShortestDate) return;
  const std::size_t colon = text.find(':');
  if (colon != std::string::npos)
    text.resize(colon < kTimeBeforeColon ? 0 : colon + 1 - kTimeBeforeColon);
  txbDate.SetText(std::string(Trim(text)) + " " + MomentTimeText());
}

}  // namespace tarnwick
