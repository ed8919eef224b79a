// The way to the sky at a place: the button that opens its window.
#pragma once

#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/form.h"
#include "help/notice.h"
#include "moment/entry_section.h"
#include "moment/session.h"
#include "sky/sky_window.h"

namespace tarnwick {

class SkySection {
 public:
  SkySection(Form& form, Screen& screen, Session& session, Desktop& desktop, EntrySection& entry,
             frmNotice& notice);

  Button cmdSky;

  frmSky sky_window;

 private:
  void cmdSky_Click();
};

}  // namespace tarnwick
