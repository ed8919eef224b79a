// Entry of a moment: the date box, the days to add or subtract, Compute and Clear.
#include <cmath>

#include "app/main_window.h"
#include "calendars/date_processing.h"
#include "calendars/entry_parser.h"
#include "calendars/text.h"
#include "controls/keys.h"

namespace tarnwick {
namespace {

// The days of a text that passes as a signed number, without its "+" and ",".
double DayCountValue(std::string_view text) { return LeadingNumber(RemoveChars(text, "+,")); }

}  // namespace

void frmMain::cmdCompute_Click() {
  txbDate.SetText(std::string(Trim(txbDate.Text())));
  if (txbDate.Text().empty()) {
    ReportDateEntryError(kNoDateGiven);
    return;
  }
  lngEclipseLunation = kNoEclipse;
  txbPlusMinus.SetText(std::string(Trim(txbPlusMinus.Text())));
  const std::string days(StripLeading(txbPlusMinus.Text(), "0"));

  std::int16_t code = kInvalidPlusMinus;
  double ajd = dblMoment;
  if (days.empty() || IsSignedNumber(days, true)) ParseDateEntry(txbDate.Text(), code, ajd);
  if (code != kEntryOk) {
    ReportDateEntryError(code);
    SetTheFocus();
    return;
  }
  if (days.empty() && ajd == dblMoment) {
    desktop_.ShowMessage({"Nothing to do!", "Compute date", MessageIcon::kExclamation});
    return;
  }
  if (!days.empty()) ajd += optPlus.Value() ? DayCountValue(days) : -DayCountValue(days);
  if (DateOutOfRange(ajd)) return;

  TakeMoment(ajd, ConvertOperation(days));
}

void frmMain::TakeMoment(double ajd, const std::string& operation) {
  ClearEclipse();
  StopClock();
  dblMoment = ajd;
  const std::string summary = DisplayMoment();
  CopyDateToEntryBox();
  AddLogEntry(AddHistoryEntry(summary, 0), operation, "");
}

void frmMain::TakeDay(std::int32_t day_number) {
  if (IsBusy()) return;
  const double noon = NoonOf(DayNumber(day_number), ReadingOffset()).days;
  if (!DateOutOfRange(noon)) TakeMoment(noon, "Lunation calendar");
}

// "Convert date minus 1.5 days" for what stands in the box of days.
std::string frmMain::ConvertOperation(const std::string& days) const {
  if (days.empty()) return "Convert date";
  const bool one = std::fabs(DayCountValue(days)) == 1;
  return std::string("Convert date") + (optPlus.Value() ? " plus " : " minus ") +
         RemoveChars(days, "+,") + (one ? " day" : " days");
}

void frmMain::cmdClearDate_Click() {
  txbDate.SetText("");
  txbPlusMinus.SetText("");
  SetTheFocus();
}

void frmMain::txbDate_KeyPress(int& key) {
  if (key != kEnterKey) return;
  key = 0;
  if (!txbDate.Text().empty()) cmdCompute_Click();
}

void frmMain::txbPlusMinus_KeyPress(int& key) {
  if (key != kEnterKey) return;
  key = 0;
  if (!txbDate.Text().empty() && !txbPlusMinus.Text().empty()) cmdCompute_Click();
}

void frmMain::txbDate_LostFocus() { txbDate.SetText(std::string(Trim(txbDate.Text()))); }

void frmMain::optPlus_Click() { ShowChoice(optPlus, optMinus); }

void frmMain::optMinus_Click() { ShowChoice(optMinus, optPlus); }

void frmMain::ParseDateEntry(const std::string& text, std::int16_t& error_code, double& ajd) {
  std::string normalised = UpperCase(Trim(text));
  if (!blnRestoringHistory) txbDate.SetText(normalised);
  if (RemoveChars(normalised, ", ").empty() && !txbPlusMinus.Text().empty()) {
    CopyDateToEntryBox();
    normalised = txbDate.Text();
  }
  const Entry entry = ParseEntry(normalised, {intCalendar, ReadingOffset(), blnRestoringHistory});
  if (entry.calendar_supplied) {
    txbDate.SetText(txbDate.Text() + " " + std::string(AbbreviationOf(intCalendar)));
  }
  error_code = entry.code;
  if (entry.code != kEntryOk) return;
  intCalendar = *entry.calendar;
  MarkCurrentCalendar();
  ajd = entry.ajd.days;
}

void frmMain::ReportDateEntryError(std::int16_t code) {
  desktop_.ShowMessage(
      {std::string(EntryErrorText(code)), "Invalid date/time entry", MessageIcon::kExclamation});
}

bool frmMain::DateOutOfRange(double ajd) {
  const bool late = ajd > kUpperLimit;
  if (ajd >= kLowerLimit && !late) return false;
  // The texts are given, with their spelling.
  desktop_.ShowMessage({late ? "Resulting date is later than 6000-01-01 CE."
                             : "Resultng date is earlier than -3200-01-01 CE.",
                        "Date out of range", MessageIcon::kExclamation});
  return true;
}

}  // namespace tarnwick
