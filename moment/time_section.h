// How moments are read: Greenwich or local time, and the time zone. Its controls stand in the
// frame of the entry.
#pragma once

#include <cstdint>

#include "controls/controls.h"
#include "moment/entry_section.h"
#include "moment/session.h"

namespace tarnwick {

class TimeSection {
 public:
  TimeSection(EntrySection& entry, Session& session);

  Label lblTimeSystem;
  OptionGroup grpTimeSystem;
  OptionButton optGreenwich;
  OptionButton optLocal;
  Label lblTimeZone;
  ComboBox cboTimeZone;

  void SetDefaults();
  // Selects a zone, and the time system too; the moment stays, and nothing is shown.
  void SelectZone(std::int16_t offset_minutes);
  void Select(bool greenwich, std::int16_t offset_minutes);
  // The moment now counts as set in the zone chosen: a change of zone moves it from there on.
  void StoreOffset() { intStoredOffset = session_.ZoneOffset(); }

 private:
  void optGreenwich_Click();
  void optLocal_Click();
  void ShowTimeSystem();
  void cboTimeZone_Click();

  EntrySection& entry_;
  Session& session_;
  std::int16_t intStoredOffset = 0;  // of the zone when the moment was last set, minutes
};

}  // namespace tarnwick
