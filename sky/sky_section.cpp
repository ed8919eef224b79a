#include "sky/sky_section.h"

namespace tarnwick {

SkySection::SkySection(Form& form, Screen& screen, Session& session, Desktop& desktop,
                       EntrySection& entry, frmNotice& notice)
    : cmdSky(form, "cmdSky", "Sky at a place"),
      sky_window(desktop, screen, session, entry, notice) {
  cmdSky.SetToolTipText("Sun, Moon and eclipses as a place on the Earth sees them");
  cmdSky.on_click = [this] { cmdSky_Click(); };
}

void SkySection::cmdSky_Click() {
  sky_window.Show();
  sky_window.Refresh();
}

}  // namespace tarnwick
