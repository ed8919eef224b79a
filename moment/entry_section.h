// Convert: the entry of a moment, and the days to add to it or subtract from it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "calendars/entry_parser.h"
#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/form.h"
#include "moment/session.h"

namespace tarnwick {

class EntrySection {
 public:
  EntrySection(Form& form, Session& session, Desktop& desktop);

  Frame fraConvert;
  TextBox txbDate{fraConvert, "txbDate"};
  OptionGroup grpPlusMinus;
  OptionButton optPlus{fraConvert, "optPlus", grpPlusMinus, "plus"};
  OptionButton optMinus{fraConvert, "optMinus", grpPlusMinus, "minus"};
  TextBox txbPlusMinus{fraConvert, "txbPlusMinus"};
  Label lblDays{fraConvert, "lblDays", "days"};
  Label lblEntryHint{fraConvert, "lblEntryHint"};
  Button cmdCompute{fraConvert, "cmdCompute", "Compute"};
  Button cmdClearDate{fraConvert, "cmdClearDate", "Clear"};

  void SetDefaults();
  void UpdateAvailability();
  // To the date box, its caret at the end; nothing where the user could not go either.
  void TakeFocus();
  // Empties both boxes.
  void ClearTexts();

  // Says below the date box what may be typed there, in place of what was wrong with the last
  // entry.
  void ShowHint();

  // Copies the moment to the date box, in the current calendar.
  void CopyDateToEntryBox();
  // Copies it again if the box still holds what was last copied there.
  void RenewCopiedDate();
  // Writes the time of day behind the date that stands in the box, in place of one that is there.
  void CopyTimeToEntryBox();

  // Reads an entry; the current calendar stays as it is.
  Entry ParseDateEntry(const std::string& text);
  // Makes a moment typed into the date box the current one, and shows it; false if it is refused,
  // which the user has been told.
  bool TakeUpTypedMoment();
  // Shows a moment that the user has named, and makes the entries in history and log.
  void TakeMoment(UniversalTime moment, const std::string& operation);
  // Whether the moment lies outside the accepted range, after telling the user.
  bool DateOutOfRange(UniversalTime moment);

 private:
  void cmdCompute_Click();
  void cmdClearDate_Click();
  void txbDate_KeyPress(int& key);
  void txbPlusMinus_KeyPress(int& key);
  void txbDate_LostFocus();
  void optPlus_Click();
  void optMinus_Click();
  void RefuseEntry(std::int16_t code);
  void ReportDateEntryError(std::int16_t code);
  bool EntryOutOfRange(std::string_view entry, UniversalTime moment);
  std::string ConvertOperation(const std::string& days) const;
  UniversalTime MomentOfDayCount(const std::string& text, UniversalTime read) const;

  Form& form_;
  Session& session_;
  Desktop& desktop_;
  std::string strCopiedEntry;     // what was last copied to the date box
  UniversalTime dblCopiedMoment;  // and the moment, of which that may show less
};

}  // namespace tarnwick
