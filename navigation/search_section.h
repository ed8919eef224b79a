// Search: the moment goes to the next or previous phase, eclipse or coincidence of calendars. The
// eclipse that is on display stands beside it, in words.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/form.h"
#include "help/notice.h"
#include "moment/entry_section.h"
#include "moment/session.h"
#include "navigation/operation.h"
#include "navigation/target.h"

namespace tarnwick {

class SearchSection {
 public:
  SearchSection(Form& form, Session& session, Desktop& desktop, EntrySection& entry,
                frmNotice& notice);

  Frame fraSearch;
  ComboBox cboTarget{fraSearch, "cboTarget"};
  OptionGroup grpNextPrevious;
  OptionButton optNext{fraSearch, "optNext", grpNextPrevious, "next"};
  OptionButton optPrevious{fraSearch, "optPrevious", grpNextPrevious, "previous"};
  Button cmdSearch{fraSearch, "cmdSearch", "Search"};
  Label lblSearching;          // shown during a long search
  Label lblActualEclipseData;  // the eclipse on display

  void SetDefaults();
  void UpdateAvailability();
  // There is no eclipse on display to take the series of: any eclipse takes its place.
  void LeaveSameSaros();
  // A running search gives up.
  void GiveUp() { blnSearching = false; }
  // Describes the eclipse on display; nothing where there is none.
  void ShowEclipse();
  // The eclipse whose description this is, if the engine has it; nothing else.
  static std::optional<PhaseNumber> EclipseOf(std::string_view description);

 private:
  void cmdSearch_Click();
  void optNext_Click();
  void optPrevious_Click();
  bool Search(int target);
  std::optional<FoundMoment> Find(int target, const MomentPhase& at,
                                  const std::optional<PhaseNumber>& described);
  std::optional<FoundMoment> FindPhaseTarget(int target, const MomentPhase& at);
  std::optional<FoundMoment> FindEclipseTarget(int target, const MomentPhase& at);
  std::optional<FoundMoment> FindSameSaros(const PhaseNumber& described);
  std::optional<FoundMoment> FindCoincidenceTarget();
  void TellOfNewSeries(const PhaseNumber& described, const PhaseNumber& found);
  bool KeepSearching();
  std::string SearchOperation(int target) const;

  Form& form_;
  Session& session_;
  Desktop& desktop_;
  EntrySection& entry_;
  frmNotice& notice_;
  bool blnSearching = false;  // a search is to go on
};

}  // namespace tarnwick
