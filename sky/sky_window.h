// The window of the sky at a place: Sun and Moon there at the current moment, through its day and
// its lunation, the eclipse on display as it is seen there, and its map.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "controls/closable_form.h"
#include "controls/control_array.h"
#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/drawing.h"
#include "help/notice.h"
#include "moment/session.h"
#include "sky/geo_point.h"
#include "sky/places.h"
#include "sky/seen_eclipses.h"

namespace tarnwick {

inline constexpr std::size_t kDayRows = 6;      // rising, transit and setting of Sun and Moon
inline constexpr std::size_t kContactRows = 8;  // of an eclipse; those there are not are hidden

class frmSky final : public ClosableForm {
 public:
  frmSky(Desktop& desktop, Screen& screen, Session& session, frmNotice& notice);

  Frame fraPlace{*this, "fraPlace", "Place"};
  ComboBox cboPlace{fraPlace, "cboPlace"};
  TextBox txbLatitude{fraPlace, "txbLatitude"};  // read by Enter, as is the longitude
  TextBox txbLongitude{fraPlace, "txbLongitude"};
  Label lblPlaceNote{fraPlace, "lblPlaceNote"};  // what the place is known for

  // A label (0) says what the other (1) tells.
  Frame fraMoment{*this, "fraMoment", "At the moment"};
  ControlArray<Label, 2> lblMomentTime{fraMoment, "lblMomentTime"};
  ControlArray<Label, 2> lblSun{fraMoment, "lblSun"};
  ControlArray<Label, 2> lblMoon{fraMoment, "lblMoon"};

  // Tables of times: what happens, when by local mean time, when as the main window reads times.
  Frame fraDay{*this, "fraDay", "This day"};
  ControlArray<Label, 2> lblDayHeading{fraDay, "lblDayHeading"};  // of the columns of times
  ControlArray<Label, kDayRows> lblDayEvent{fraDay, "lblDayEvent"};
  ControlArray<Label, kDayRows> lblDayLocalTime{fraDay, "lblDayLocalTime"};
  ControlArray<Label, kDayRows> lblDayMainTime{fraDay, "lblDayMainTime"};

  Frame fraLunation{*this, "fraLunation", "This lunation"};
  ControlArray<Label, 2> lblFirstCrescent{fraLunation, "lblFirstCrescent"};
  ControlArray<Label, 2> lblLastCrescent{fraLunation, "lblLastCrescent"};

  Frame fraEclipse{*this, "fraEclipse", "Eclipse"};
  Label lblEclipse{fraEclipse, "lblEclipse"};          // which one it is, or that there is none
  Label lblEclipseSeen{fraEclipse, "lblEclipseSeen"};  // as what it is seen here
  ControlArray<Label, 2> lblContactHeading{fraEclipse, "lblContactHeading"};
  ControlArray<Label, kContactRows> lblContact{fraEclipse, "lblContact"};
  ControlArray<Label, kContactRows> lblContactLocalTime{fraEclipse, "lblContactLocalTime"};
  ControlArray<Label, kContactRows> lblContactMainTime{fraEclipse, "lblContactMainTime"};
  ControlArray<Label, kContactRows> lblContactAltitude{fraEclipse, "lblContactAltitude"};
  Label lblCertainty{fraEclipse, "lblCertainty"};  // how sure that is

  Frame fraMap{*this, "fraMap"};  // saved as a picture
  Label lblMapTitle{fraMap, "lblMapTitle"};
  Drawing drwMap{fraMap, "drwMap"};
  Label lblGreatest{fraMap, "lblGreatest"};  // where the eclipse is greatest, or nothing

  ComboBox cboSeenEclipse{*this, "cboSeenEclipse"};  // which eclipses the two buttons look for
  Button cmdPreviousHere{*this, "cmdPreviousHere", "Previous eclipse here"};
  Button cmdNextHere{*this, "cmdNextHere", "Next eclipse here"};
  Label lblSearching{*this, "lblSearching", "Searching ..."};
  Button cmdSaveMap{*this, "cmdSaveMap", "Save map as PNG"};

  Timer tmrMap{*this, "tmrMap"};  // each tick makes a part of the map
};

}  // namespace tarnwick
