// The window in which the user chooses what the entries of the log hold, and how.
#pragma once

#include <array>

#include "calendars/calendar_table.h"
#include "controls/closable_form.h"
#include "controls/control_array.h"
#include "controls/controls.h"
#include "log/log_entry.h"

namespace tarnwick {

class frmLogPreferences final : public ClosableForm {
 public:
  explicit frmLogPreferences(Screen& screen);

  Label lblInclude{*this, "lblInclude", "Include in log entries:"};
  CheckBox chkIncludeCE{*this, "chkIncludeCE", "CE (Common Era Calendar)"};
  CheckBox chkIncludeJC{*this, "chkIncludeJC", "JC (Julian Calendar)"};
  CheckBox chkIncludeARC{*this, "chkIncludeARC", "ARC (Archetypes Calendar)"};
  CheckBox chkIncludeSD{*this, "chkIncludeSD", "SD (Sarvik-Dolmer Solilunar Calendar)"};
  CheckBox chkIncludeLLT{*this, "chkIncludeLLT", "LLT (Lunar Liberalia Triday Calendar)"};
  CheckBox chkIncludeKSG{*this, "chkIncludeKSG", "KSG (Kestrin-Sarvik Goddess Calendar)"};
  CheckBox chkIncludeOLWC{*this, "chkIncludeOLWC", "OLW (Ostrel Lunar Week Calendar)"};
  CheckBox chkIncludeCJD{*this, "chkIncludeCJD", "CJD (Chronological Julian Date)"};
  CheckBox chkIncludeAJD{*this, "chkIncludeAJD", "AJD (Astronomicall Julian Date)"};
  CheckBox chkIncludePhaseOfMoonAndIllumination{*this, "chkIncludePhaseOfMoonAndIllumination",
                                                "Phase of Moon and illumination"};
  CheckBox chkIncludeLunationAndAgeOfMoon{*this, "chkIncludeLunationAndAgeOfMoon",
                                          "Lunation and age of Moon"};

  Label lblFormat{*this, "lblFormat", "Format:"};
  OptionGroup grpLogFormat;
  ControlArray<OptionButton, 2> optLogFormat{*this, "optLogFormat", grpLogFormat};

  Button cmdSetALL{*this, "cmdSetALL", "Set all"};
  Button cmdClearAll{*this, "cmdClearAll", "Clear all"};

  // The window has been closed.
  Control::Handler on_closed;

  // Everything included, in the first layout.
  void SetDefaults();
  LogLayout Layout() const;
  // The check box of a calendar of the calendar table.
  const CheckBox& IncludeOf(Calendar calendar) const;

  void Form_Activate() override;
  void Form_Unload(bool& cancel) override;

 private:
  void SetAllBoxes(bool value);
  void cmdSetALL_Click();
  void cmdClearAll_Click();
  void cmdClose_Click() override;
};

}  // namespace tarnwick
