// The window of lists: everything of a kind in a period, found step by step, to be looked through,
// sorted, taken up, saved and printed.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "controls/closable_form.h"
#include "controls/control_array.h"
#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/printing.h"
#include "controls/table.h"
#include "help/notice.h"
#include "lists/found_list.h"
#include "lists/row_order.h"
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
  Button cmdSaveListPDF{*this, "cmdSaveListPDF", "Save as PDF"};

  Timer tmrList{*this, "tmrList"};  // each tick finds some more

  // Tells the rows anew, if the window is on display: how moments are read has changed.
  void Refresh();
  void UpdateAvailability();

  void Form_Load() override;
  void Form_Activate() override;

 protected:
  void cmdClose_Click() override;

 private:
  ListReading Reading() const;
  ListKind Kind() const;
  void cboKind_Click();
  void Period_KeyPress(int& key);
  void cmdList_Click();
  void cmdStopList_Click();
  std::string TitleOf(const ListRequest& request) const;
  void ShowColumns();
  void ShowTable();
  void chkColumn_Click(std::size_t column);
  std::vector<std::size_t> ChosenColumns() const;
  void tmrList_Timer();
  void EndFinding();
  void ShowProgress();
  std::size_t RowAt(std::size_t index) const;
  std::string CellText(std::size_t index, std::size_t column) const;
  void SortBy(std::size_t column);
  void Sort();
  void TakeRow(std::size_t index);
  void cmdTakeRow_Click();
  void cmdSaveCSV_Click();
  void cmdSaveCalendar_Click();
  void cmdPrintList_Click();
  void cmdSaveListPDF_Click();
  // Asks for a file and saves a text of the rows there; `make` makes it, row by row, and gives
  // nothing if the user has stopped it. Whether it was saved.
  bool SaveText(const Button& command, const std::string& ending,
                const std::function<std::optional<std::string>()>& make);
  std::optional<std::string> MakeCSV();
  std::optional<std::string> MakeCalendar(std::size_t& left_out);
  PrintedTable Printed() const;
  bool KeepSaving(std::size_t done);
  bool IsTooLong(std::size_t most, const std::string& what);

  Desktop& desktop_;
  Session& session_;
  EntrySection& entry_;
  PlaceSection& place_;
  frmNotice& notice_;
  std::unique_ptr<FoundList> list_;  // none before the first one is made
  ListReading reading_;              // in which its cells are shown
  std::string list_name_;            // for the files that it is saved in
  std::vector<std::size_t> shown_;   // the columns of the list that the table shows
  RowOrder order_;
  bool blnFinding = false;  // more rows are being found
  bool blnCut = false;      // the list has been stopped before its end
  bool blnSaving = false;   // rows are being put in words for a file
  bool blnStopped = false;  // by the user, before its end
};

}  // namespace tarnwick
