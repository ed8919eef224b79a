// History: the results of the last operations, each of which can be recalled, and the way back to
// whatever was shown before.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/form.h"
#include "moment/entry_section.h"
#include "moment/session.h"
#include "moment/time_section.h"
#include "navigation/trail.h"

namespace tarnwick {

class HistorySection {
 public:
  HistorySection(Form& form, Session& session, Desktop& desktop, EntrySection& entry,
                 TimeSection& time);

  Frame fraHistory;
  ComboBox cboHistory{fraHistory, "cboHistory"};
  Button cmdBack{fraHistory, "cmdBack", "<"};
  Button cmdForward{fraHistory, "cmdForward", ">"};

  void UpdateAvailability();
  // The moment on display is one to come back to.
  void Remember();
  // Adds a date in the current calendar, with the type of its eclipse or 0. Returns the entry, or
  // nothing where it equals the newest one, which is then selected.
  std::string AddHistoryEntry(const std::string& date, std::int16_t eclipse_type);

 private:
  std::string HistoryText(const std::string& date) const;
  void cboHistory_Click();
  void RecallHistory();
  void SelectNewest();
  void Return(const Visit& visit);

  Session& session_;
  Desktop& desktop_;
  EntrySection& entry_;
  TimeSection& time_;
  Trail trail_;
  std::vector<UniversalTime> moments_;  // of the entries, of which they may show less
  bool blnAddingHistory = false;        // an entry is being added
  std::int16_t intHistoryIndex = -1;    // of the entry last added or selected
};

}  // namespace tarnwick
