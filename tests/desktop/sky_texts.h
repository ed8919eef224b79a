// The window of the sky at a place, filled.
#pragma once

#include "sky/sky_window.h"

namespace tarnwick {

// Gives every label the longest text that it is likely to have.
inline void FillWithLongestTexts(frmSky& form) {
  const auto fill = [](auto& labels, const char* text) {
    for (Label& label : labels) label.SetCaption(text);
  };
  form.lblPlaceNote.SetCaption("rival of Rome; Agathocles' eclipse of 310 BCE on the way there");
  form.lblMomentTime[0].SetCaption("Time");
  form.lblMomentTime[1].SetCaption("23:59:59 local mean time");
  form.lblSun[0].SetCaption("Sun");
  form.lblSun[1].SetCaption("12.5 below the horizon, azimuth 165.4");
  form.lblMoon[0].SetCaption("Moon");
  form.lblMoon[1].SetCaption("12.5 below the horizon, azimuth 165.4");
  fill(form.lblDayHeading, "local mean time");
  fill(form.lblDayEvent, "Moon on the meridian");
  fill(form.lblDayLocalTime, "23:59:59");
  fill(form.lblDayMainTime, "23:59:59");
  form.lblFirstCrescent[0].SetCaption("First crescent");
  form.lblFirstCrescent[1].SetCaption(
      "evening of -2026-11-11 CE, visible under perfect conditions (B)");
  form.lblLastCrescent[0].SetCaption("Last crescent");
  form.lblLastCrescent[1].SetCaption(
      "morning of -2026-12-08 CE, visible under perfect conditions (B)");
  form.lblEclipse.SetCaption("Non-central annular solar eclipse of -584-05-28 CE (585 BCE)");
  form.lblEclipseSeen.SetCaption(
      "seen here as partial, magnitude 0.934, obscuration 92.1 %, greatest as the Sun rises");
  form.lblCertainty.SetCaption(
      "annular; partial if delta T is 11 min less; not seen if it is 11 min more");
  fill(form.lblContactHeading, "local mean time");
  fill(form.lblContact, "Penumbral eclipse begins");
  fill(form.lblContactLocalTime, "18:24 +- 11 min");
  fill(form.lblContactMainTime, "18:24 +- 11 min");
  fill(form.lblContactAltitude, "Moon 12.5 below, azimuth 123.4");
  form.lblMapTitle.SetCaption("Non-central annular solar eclipse of -584-05-28 CE (585 BCE)");
  form.lblGreatest.SetCaption(
      "Greatest eclipse at 45.07 N 24.29 E, 11:03:07: total for 2 min 23 s, path 112 km wide");
  form.lblSearching.SetVisible(true);
}

}  // namespace tarnwick
