// The window of the sky at a place, filled.
#pragma once

#include "sky/sky_window.h"

namespace tarnwick {

// Gives every label the longest text that it is likely to have.
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

}  // namespace tarnwick
