// The windows, filled: every label with the longest text that it is likely to have.
#pragma once

#include <string>

#include "app/main_window.h"
#include "lists/lists_window.h"
#include "sky/sky_window.h"

namespace tarnwick {

// Shows whatever can be shown, each at its longest.
inline void FillWithLongestTexts(frmMain& form) {
  form.dates.lblOstrelLWCDate[1].SetCaption(
      "9000-13-3-3 OLW (Daythree in Weekthree of De Quincy, 9000)");
  form.moon.lblAgeOfMoon[1].SetCaption("[-64316] 29 days, 23 hrs, 59 mins (100.0%)");
  form.search.lblActualEclipseData.SetCaption(
      "Total lunar eclipse\r\nLunation number = -64316\r\nSaros number = 100\r\n"
      "Penumbral phase starts 20:58 and lasts 6h 28m.\r\n"
      "Umbral phase starts 20:58 and lasts 3h 58m.\r\n"
      "Total phase starts 20:58 and lasts 1h 48m.\r\n");
  form.history.cboHistory.AddItem("5003-10-2-1 OLW 09:55 (Greenwich; local = GMT+05:30)");
  form.move.fraStopPauseResume.SetVisible(true);
  form.move.cmdPauseResume.SetCaption("Resume");
  form.search.lblSearching.SetVisible(true);
}

inline void FillWithLongestTexts(frmSky& form) {
  const auto fill = [](auto& labels, const char* text) {
    for (Label& label : labels) label.SetCaption(text);
  };
  form.place.lblPlaceNote.SetCaption(
      "rival of Rome; Agathocles' eclipse of 310 BCE on the way there");
  form.lblMomentTime[1].SetCaption("23:59:59 local mean time\n23:59:59 GMT + 12:00");
  form.lblSun[1].SetCaption("on the horizon, azimuth 165.4\u00b0");
  form.lblMoon[1].SetCaption("on the horizon, azimuth 165.4\u00b0");
  fill(form.lblDayHeading, "local mean time");
  fill(form.lblDayEvent, "Moon highest");
  fill(form.lblDayLocalTime, "00:03, 23:58");
  fill(form.lblDayMainTime, "00:03, 23:58");
  form.lblFirstCrescent[1].SetCaption(
      "evening of -2026-11-11 CE, perhaps with optical aid (C); "
      "evening of -2026-11-12 CE, easily visible (A)");
  form.lblLastCrescent[1].SetCaption(
      "morning of -2026-12-08 CE, perhaps with optical aid (C); "
      "morning of -2026-12-07 CE, easily visible (A)");
  form.lblEclipse.SetCaption(
      "Non-central annular solar eclipse of -584-05-28 JC (-584, 585 BCE), saros 57");
  form.lblEclipseSeen.SetCaption(
      "Seen here as partial, magnitude 0.461 at sunrise; annular, magnitude 0.952 below the "
      "horizon");
  form.lblCertainty.SetCaption(
      "The clock is sure to +- 11 min. Here: annular; partial if delta T is 11 min less; not seen "
      "if it is 11 min more");
  fill(form.lblContactHeading, "local mean time");
  fill(form.lblContact, "penumbral phase begins");
  fill(form.lblContactLocalTime, "18:24 +- 11 min");
  fill(form.lblContactMainTime, "18:24 +- 11 min");
  fill(form.lblContactAltitude, "on the horizon, azimuth 123.4\u00b0");
  form.lblMapTitle.SetCaption(
      "Non-central annular solar eclipse of -584-05-28 JC (-584, 585 BCE), saros 57");
  form.lblGreatest.SetCaption(
      "Greatest eclipse at 11:03 +- 11 min GMT + 12:00, 45.07 N 124.29 E: total for 2 min 23 s, "
      "path 112 km wide");
  form.lblSearching.SetVisible(true);
}

// The window is open; what it has found of its first list stands behind the rows.
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
