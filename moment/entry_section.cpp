#include "moment/entry_section.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "calendars/date_processing.h"
#include "calendars/date_texts.h"
#include "calendars/entry_hint.h"
#include "calendars/entry_parser.h"
#include "calendars/text.h"
#include "controls/choice.h"
#include "controls/keys.h"
#include "moment/accepted_range.h"

namespace tarnwick {
namespace {

// About a minute: what the displayed text loses of a moment's seconds is no new moment.
constexpr double kSameMoment = 0.0007;

// The days of a text that passes as a signed number, without its "+" and ",".
double DayCountValue(std::string_view text) { return LeadingNumber(RemoveChars(text, "+,")); }

}  // namespace

EntrySection::EntrySection(Form& form, Session& session, Desktop& desktop)
    : fraConvert(form, "fraConvert", "Convert"), form_(form), session_(session), desktop_(desktop) {
  cmdCompute.on_click = [this] { cmdCompute_Click(); };
  cmdClearDate.on_click = [this] { cmdClearDate_Click(); };
  txbDate.on_key_press = [this](int& key) { txbDate_KeyPress(key); };
  txbDate.on_lost_focus = [this] { txbDate_LostFocus(); };
  txbPlusMinus.on_key_press = [this](int& key) { txbPlusMinus_KeyPress(key); };
  optPlus.on_click = [this] { optPlus_Click(); };
  optMinus.on_click = [this] { optMinus_Click(); };
  for (TextBox* box : {&txbDate, &txbPlusMinus}) {
    box->Watch([this](Property changed) {
      if (changed == Property::kText) ShowHint();
    });
  }
  lblDays.SetToolTipText("Compute adds so many days to the date, or subtracts them");
  cmdCompute.SetToolTipText("Shows the date typed, the days added or subtracted");
  cmdClearDate.SetToolTipText("Empties both boxes");
  SetDefaults();
  ShowHint();
}

void EntrySection::SetDefaults() { optPlus.SetValue(true); }

void EntrySection::UpdateAvailability() {
  SetEnabled({&fraConvert, &txbDate, &txbPlusMinus, &cmdCompute, &cmdClearDate}, session_.IsIdle());
}

void EntrySection::TakeFocus() {
  if (!form_.IsActive() || !fraConvert.Enabled()) return;
  txbDate.SetFocus();
  txbDate.MoveCaretToEnd();
}

void EntrySection::ClearTexts() {
  txbDate.SetText("");
  txbPlusMinus.SetText("");
}

void EntrySection::cmdCompute_Click() {
  txbDate.SetText(std::string(Trim(txbDate.Text())));
  if (txbDate.Text().empty()) {
    RefuseEntry(kNoDateGiven);
    return;
  }
  txbPlusMinus.SetText(std::string(Trim(txbPlusMinus.Text())));
  const std::string days(StripLeading(txbPlusMinus.Text(), "0"));

  Entry read;
  read.code = kInvalidPlusMinus;
  if (days.empty() || IsSignedNumber(days, true)) read = ParseDateEntry(txbDate.Text());
  if (read.code != kEntryOk) {
    RefuseEntry(read.code);
    session_.hooks.focus_on_date();
    return;
  }
  UniversalTime moment = read.ajd;
  if (days.empty() && moment == session_.Moment()) {
    session_.SetCalendar(*read.calendar);
    desktop_.ShowMessage({"Nothing to do!", "Compute date", MessageIcon::kExclamation});
    return;
  }
  if (!days.empty()) {
    const double count = DayCountValue(days);
    moment = optPlus.Value() ? moment + count : moment - count;
  }
  if (EntryOutOfRange(days.empty() ? txbDate.Text() : "The result", moment)) return;

  session_.SetCalendar(*read.calendar);
  TakeMoment(moment, ConvertOperation(days));
}

void EntrySection::TakeMoment(UniversalTime moment, const std::string& operation) {
  session_.ClearEclipse();
  session_.SetClockRunning(false);
  session_.SetMoment(moment);
  const std::string summary = session_.hooks.show_moment();
  CopyDateToEntryBox();
  session_.hooks.finish({summary, operation});
}

// "Convert date minus 1.5 days" for what stands in the box of days.
std::string EntrySection::ConvertOperation(const std::string& days) const {
  if (days.empty()) return "Convert date";
  const bool one = std::fabs(DayCountValue(days)) == 1;
  return std::string("Convert date") + (optPlus.Value() ? " plus " : " minus ") +
         RemoveChars(days, "+,") + (one ? " day" : " days");
}

void EntrySection::cmdClearDate_Click() {
  ClearTexts();
  session_.hooks.focus_on_date();
}

void EntrySection::txbDate_KeyPress(int& key) {
  if (key != kEnterKey) return;
  key = 0;
  if (!txbDate.Text().empty()) cmdCompute_Click();
}

void EntrySection::txbPlusMinus_KeyPress(int& key) {
  if (key != kEnterKey) return;
  key = 0;
  if (!txbDate.Text().empty() && !txbPlusMinus.Text().empty()) cmdCompute_Click();
}

void EntrySection::txbDate_LostFocus() { txbDate.SetText(std::string(Trim(txbDate.Text()))); }

void EntrySection::optPlus_Click() { ShowChoice(optPlus, optMinus); }

void EntrySection::optMinus_Click() { ShowChoice(optMinus, optPlus); }

void EntrySection::CopyDateToEntryBox() {
  const Calendar calendar = session_.CurrentCalendar();
  txbDate.SetText(DateTextsOf(calendar, session_.Moment(), session_.ReadingOffset()).short_form);
  if (!IsDayCount(calendar)) CopyTimeToEntryBox();
  strCopiedEntry = txbDate.Text();
  dblCopiedMoment = session_.Moment();
  ShowHint();
  session_.hooks.focus_on_date();
}

void EntrySection::RenewCopiedDate() {
  if (!txbDate.Text().empty() && txbDate.Text() == strCopiedEntry) CopyDateToEntryBox();
}

void EntrySection::CopyTimeToEntryBox() {
  constexpr std::size_t kShortestDate = 3;
  constexpr std::size_t kTimeBeforeColon = 3;  // a blank and two digits
  std::string text = txbDate.Text();
  if (text.size() < kShortestDate) return;
  text.resize(std::min(text.find('('), text.size()));  // a remark may hold the time of a zone
  const std::size_t colon = text.find(':');
  if (colon != std::string::npos)
    text.resize(colon < kTimeBeforeColon ? 0 : colon + 1 - kTimeBeforeColon);
  txbDate.SetText(std::string(Trim(text)) + " " + session_.TimeText());
}

Entry EntrySection::ParseDateEntry(const std::string& text) {
  const bool recalled = session_.blnRestoringHistory;
  std::string normalised = UpperCase(Trim(text));
  if (!recalled) txbDate.SetText(normalised);
  if (RemoveChars(normalised, ", ").empty() && !txbPlusMinus.Text().empty()) {
    CopyDateToEntryBox();
    normalised = txbDate.Text();
  }
  const Calendar current = session_.CurrentCalendar();
  Entry entry = ParseEntry(normalised, {current, session_.ReadingOffset(), recalled});
  if (entry.calendar_supplied) {
    std::string supplied = txbDate.Text();
    supplied.insert(std::min(supplied.find('('), supplied.size()),
                    " " + std::string(AbbreviationOf(current)));
    txbDate.SetText(supplied);
  }
  if (entry.code == kEntryOk && IsDayCount(*entry.calendar)) {
    entry.ajd = MomentOfDayCount(normalised, entry.ajd);
  }
  return entry;
}

// A day count as it was copied stands for the moment that it was copied from, and one that cannot
// be told from a limit for that.
UniversalTime EntrySection::MomentOfDayCount(const std::string& text, UniversalTime read) const {
  if (text == strCopiedEntry && IsShownAlike(read, dblCopiedMoment)) return dblCopiedMoment;
  return LimitOrMoment(read);
}

bool EntrySection::TakeUpTypedMoment() {
  txbDate.SetText(std::string(Trim(txbDate.Text())));
  if (txbDate.Text().empty()) return true;
  const Entry read = ParseDateEntry(txbDate.Text());
  if (read.code != kEntryOk) {
    RefuseEntry(read.code);
    session_.hooks.focus_on_date();
    return false;
  }
  const bool same = std::fabs(read.ajd - session_.Moment()) < kSameMoment;
  if (!same && EntryOutOfRange(txbDate.Text(), read.ajd)) {
    session_.hooks.focus_on_date();
    return false;
  }
  session_.SetCalendar(*read.calendar);
  if (same) return true;
  session_.ClearEclipse();
  session_.SetClockRunning(false);
  session_.SetMoment(read.ajd);
  session_.hooks.show_moment();
  return true;
}

void EntrySection::ShowHint() { lblEntryHint.SetCaption(EntryHint(session_.CurrentCalendar())); }

void EntrySection::RefuseEntry(std::int16_t code) {
  ReportDateEntryError(code);
  lblEntryHint.SetCaption(RefusalHint(txbDate.Text(), session_.CurrentCalendar(), code));
}

bool EntrySection::EntryOutOfRange(std::string_view entry, UniversalTime moment) {
  if (!DateOutOfRange(moment)) return false;
  lblEntryHint.SetCaption(OutOfRangeHint(entry, moment > kUpperLimit));
  return true;
}

void EntrySection::ReportDateEntryError(std::int16_t code) {
  desktop_.ShowMessage(
      {std::string(EntryErrorText(code)), "Invalid date/time entry", MessageIcon::kExclamation});
}

bool EntrySection::DateOutOfRange(UniversalTime moment) {
  const std::string_view error = RangeErrorText(moment);
  if (error.empty()) return false;
  desktop_.ShowMessage({std::string(error), "Date out of range", MessageIcon::kExclamation});
  return true;
}

}  // namespace tarnwick
