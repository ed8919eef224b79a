// The window of lists: everything of a kind in a period, found step by step, to be looked through,
// sorted, taken up, saved and printed.
#pragma once

#include <cstddef>

#include "controls/closable_form.h"
#include "controls/control_array.h"
#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/table.h"
#include "help/notice.h"
#include "moment/entry_section.h"
#include "moment/session.h"
#include "sky/place_section.h"

namespace tarnwick {

inline constexpr std::size_t kMostColumns = 12;

class frmLists final : public ClosableForm {
 public:
  frmLists(Desktop& desktop, Screen& screen, Session& session, EntrySection& entry,
           PlaceSection& place, frmNotice& notice);

  Frame fraWhat{*this, "fraWhat", "List"};
  ComboBox cboKind{fraWhat, "cboKind"};      // phases, eclipses, ...
  ComboBox cboChoice{fraWhat, "cboChoice"};  // which of them; hidden where there is no choice
  Label lblFrom{fraWhat, "lblFrom", "from"};
  TextBox txbFrom{fraWhat, "txbFrom"};  // typed as in the entry box; Enter makes the list
  Label lblTo{fraWhat, "lblTo", "to"};
  TextBox txbTo{fraWhat, "txbTo"};
  Button cmdList{fraWhat, "cmdList", "Make list"};
  Button cmdStopList{fraWhat, "cmdStopList", "Stop"};  // while it is being made

  Frame fraColumns{*this, "fraColumns", "Columns"};
  // Which columns are shown; those that a kind does not have are hidden.
  ControlArray<CheckBox, kMostColumns> chkColumn{fraColumns, "chkColumn"};

  Label lblListTitle{*this, "lblListTitle"};  // "Solar eclipses seen at Babylon, -800 to -700"
  Table tblList{*this, "tblList"};
  Label lblProgress{*this, "lblProgress"};  // "1,234 rows, 56 %"

  Button cmdTakeRow{*this, "cmdTakeRow", "Take up moment"};
  Button cmdSaveCSV{*this, "cmdSaveCSV", "Save as CSV"};
  Button cmdSaveCalendar{*this, "cmdSaveCalendar", "Save as iCalendar"};
  Button cmdPrintList{*this, "cmdPrintList", "Print"};

  Timer tmrList{*this, "tmrList"};  // each tick finds some more
};

}  // namespace tarnwick
