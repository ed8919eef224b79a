// History: the results of the last operations, each of which can be recalled.
#pragma once

#include <cstdint>
#include <string>

#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/form.h"
#include "moment/entry_section.h"
#include "moment/session.h"
#include "moment/time_section.h"

namespace tarnwick {

class HistorySection {
 public:
  HistorySection(Form& form, Session& session, Desktop& desktop, EntrySection& entry,
                 TimeSection& time);

  Frame fraHistory;
  ComboBox cboHistory{fraHistory, "cboHistory"};

  void UpdateAvailability();
  // Adds a date in the current calendar, with the type of its eclipse or 0. Returns the entry, or
  // nothing where it equals the newest one and is not added.
  std::string AddHistoryEntry(const std::string& date, std::int16_t eclipse_type);

 private:
  std::string HistoryText(const std::string& date) const;
  void cboHistory_Click();
  void RecallHistory();

  Session& session_;
  Desktop& desktop_;
  EntrySection& entry_;
  TimeSection& time_;
  bool blnAddingHistory = false;      // an entry is being added
  std::int16_t intHistoryIndex = -1;  // of the entry last added or selected
};

}  // namespace tarnwick
