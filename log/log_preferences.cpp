#include "log/log_preferences.h"

namespace tarnwick {
frmLogPreferences::frmLogPreferences(Screen& screen)
    : ClosableForm(screen, "frmLogPreferences", "Log preferences") {
  optLogFormat[0].SetCaption("calendar=date");
  optLogFormat[1].SetCaption("date calendar,");
  cmdSetALL.on_click = [this] { cmdSetALL_Click(); };
  cmdClearAll.on_click = [this] { cmdClearAll_Click(); };
  SetDefaults();
}

void frmLogPreferences::SetDefaults() {
  optLogFormat[0].SetValue(true);
  SetAllBoxes(true);
}

void frmLogPreferences::SetAllBoxes(bool value) {
  for (Control* control : Controls()) {
    if (auto* box = dynamic_cast<CheckBox*>(control)) box->SetValue(value);
  }
}

void frmLogPreferences::cmdSetALL_Click() { SetAllBoxes(true); }

void frmLogPreferences::cmdClearAll_Click() { SetAllBoxes(false); }

LogLayout frmLogPreferences::Layout() const {
  return optLogFormat[1].Value() ? LogLayout::kDateOnly : LogLayout::kCalendarAndDate;
}

const CheckBox& frmLogPreferences::IncludeOf(Calendar calendar) const {
  const CheckBox* const boxes[] = {&chkIncludeCE,  &chkIncludeJC,  &chkIncludeARC,
                                   &chkIncludeSD,  &chkIncludeLLT, &chkIncludeKSG,
                                   &chkIncludeCJD, &chkIncludeAJD, &chkIncludeOLWC};
  const CheckBox* const box = boxes[static_cast<std::size_t>(calendar)];
  return *box;
}

void frmLogPreferences::Form_Activate() { cmdClose.SetFocus(); }

void frmLogPreferences::cmdClose_Click() {
  Hide();
  on_closed();
}

// The choices stay, so the close box does no more than the button.
void frmLogPreferences::Form_Unload(bool& cancel) {
  cancel = true;
  cmdClose_Click();
}

}  // namespace tarnwick
