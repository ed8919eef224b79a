// The Moon at the current moment: its picture, phase and age, and delta T.
#pragma once

#include <cstdint>
#include <string>

#include "controls/desktop.h"
#include "controls/form.h"
#include "controls/picture_files.h"
#include "moment/dates_section.h"
#include "moment/session.h"

namespace tarnwick {

class MoonSection {
 public:
  MoonSection(Form& form, Session& session, Desktop& desktop, PictureFiles& pictures);

  Picture picMoon;
  ValueLabel lblPhaseOfMoon;
  ValueLabel lblAgeOfMoon;
  ValueLabel lblDeltaT;

  void Show();

 private:
  void DisplayMoonData();
  void DisplayDeltaT();
  void ShowPicture(double fraction, bool waxing);

  Session& session_;
  Desktop& desktop_;
  PictureFiles& pictures_;
};

// Tells the user of a negative answer of GetPhase in a routine. There is none as long as GetPhase
// and LunationOf agree to which lunation a moment belongs.
void ReportPhaseError(Desktop& desktop, std::int16_t code, const std::string& routine);

}  // namespace tarnwick
