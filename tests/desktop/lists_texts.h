// The window of lists, filled.
#pragma once

#include <string>

#include "lists/lists_window.h"

namespace tarnwick {

// Gives every label the longest text that it is likely to have, and the table columns and rows. The
// window is open; what it has found of its first list stands behind the rows.
inline void FillWithLongestTexts(frmLists& form) {
  form.cmdList.Click();
  form.tmrList.Tick();
  form.cmdStopList.Click();
  form.cboChoice.SetVisible(true);
  form.cmdStopList.SetVisible(true);
  constexpr std::size_t kColumns = 9;
  for (std::size_t i = 0; i < kMostColumns; ++i) {
    form.chkColumn[i].SetCaption("Magnitude");
    form.chkColumn[i].SetVisible(i < kColumns);
  }
  form.lblListTitle.SetCaption(
      "Umbral lunar eclipses seen at Cambridge, Massachusetts, -3113-11-13 CE to 5999-12-31 CE");
  form.lblProgress.SetCaption("3,361,000 rows, 100 %");
  std::vector<TableColumn> columns(kColumns, {"Magnitude", "-5011-13-3-3 OLW"});
  columns.back().right = true;
  form.tblList.SetColumns(columns);
  form.tblList.cell_text = [](std::size_t row, std::size_t column) {
    return std::to_string(row) + " in " + std::to_string(column);
  };
  form.tblList.SetRowCount(1000);
}

}  // namespace tarnwick
