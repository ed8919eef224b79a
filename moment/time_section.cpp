#include "moment/time_section.h"

#include "controls/choice.h"
#include "engines/time_units.h"
#include "moment/time_zone.h"

namespace tarnwick {

TimeSection::TimeSection(EntrySection& entry, Session& session)
    : lblTimeSystem(entry.fraConvert, "lblTimeSystem", "Time system"),
      optGreenwich(entry.fraConvert, "optGreenwich", grpTimeSystem, "Greenwich"),
      optLocal(entry.fraConvert, "optLocal", grpTimeSystem, "local"),
      lblTimeZone(entry.fraConvert, "lblTimeZone", "Time zone"),
      cboTimeZone(entry.fraConvert, "cboTimeZone"),
      entry_(entry),
      session_(session) {
  for (int i = 0; i < kTimeZoneCount; ++i) cboTimeZone.AddItem(TimeZoneText(i));
  cboTimeZone.SetListIndex(kGmtTimeZone);
  lblTimeSystem.SetToolTipText("How times are read and typed: as at Greenwich, or in the zone");
  lblTimeZone.SetToolTipText(
      "Hours ahead of Greenwich; another zone keeps date and time, and so means another moment");
  SetDefaults();
  ShowChoice(optLocal, optGreenwich);
  optGreenwich.on_click = [this] { optGreenwich_Click(); };
  optLocal.on_click = [this] { optLocal_Click(); };
  cboTimeZone.on_click = [this] { cboTimeZone_Click(); };
}

void TimeSection::SetDefaults() { optLocal.SetValue(true); }

void TimeSection::SelectZone(std::int16_t offset_minutes) {
  const ScopedFlag restoring(session_.blnRestoring);
  cboTimeZone.SetListIndex(TimeZoneIndex(offset_minutes));
  StoreOffset();
}

void TimeSection::Select(bool greenwich, std::int16_t offset_minutes) {
  const ScopedFlag recalling(session_.blnRestoringHistory);
  (greenwich ? optGreenwich : optLocal).SetValue(true);
  SelectZone(offset_minutes);
}

// Common to both time systems: the moment stays, only its reading changes.
void TimeSection::ShowTimeSystem() {
  session_.SetGreenwich(optGreenwich.Value());
  if (session_.blnRestoringHistory) return;
  session_.hooks.show_moment();
  entry_.RenewCopiedDate();
  session_.hooks.focus_on_date();
}

void TimeSection::optGreenwich_Click() {
  ShowChoice(optGreenwich, optLocal);
  ShowTimeSystem();
}

void TimeSection::optLocal_Click() {
  ShowChoice(optLocal, optGreenwich);
  ShowTimeSystem();
}

// Keeps the local date and time on display, so that the moment itself moves.
void TimeSection::cboTimeZone_Click() {
  const std::int16_t offset = TimeZoneOffset(cboTimeZone.Text());
  if (session_.blnRestoring) {
    session_.SetZoneOffset(offset);
    return;
  }
  const int change = intStoredOffset - offset;
  const UniversalTime moment = session_.Moment() + static_cast<double>(change) / kMinutesPerDay;
  if (entry_.DateOutOfRange(moment)) {
    SelectZone(intStoredOffset);
    session_.hooks.focus_on_date();
    return;
  }
  session_.SetZoneOffset(offset);
  StoreOffset();
  session_.ClearEclipse();
  session_.SetMoment(moment);
  const std::string summary = session_.hooks.show_moment();
  entry_.RenewCopiedDate();
  Outcome outcome{summary, "Timezone changed."};
  outcome.only_if_new = true;
  session_.hooks.finish(outcome);
  session_.hooks.focus_on_date();
}

}  // namespace tarnwick
