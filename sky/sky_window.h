// The window of the sky at a place: Sun and Moon there at the current moment, through its day and
// its lunation, the eclipse on display as it is seen there, and its map.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "controls/closable_form.h"
#include "controls/control_array.h"
#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/drawing.h"
#include "engines/phase_engine.h"
#include "help/notice.h"
#include "moment/entry_section.h"
#include "moment/session.h"
#include "sky/place_section.h"
#include "sky/place_time.h"
#include "sky/seen_eclipses.h"
#include "sky/sky_map.h"
#include "sky/sky_texts.h"

namespace tarnwick {

inline constexpr std::size_t kDayRows = kDayEvents.size();
inline constexpr std::size_t kContactRows = 8;  // of an eclipse; those there are not are hidden

class frmSky final : public ClosableForm {
 public:
  frmSky(Desktop& desktop, Screen& screen, Session& session, EntrySection& entry,
         frmNotice& notice);

  PlaceSection place;

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

  // Shows everything anew, if the window is on display: a setting, the moment or the eclipse that
  // is described has changed.
  void Refresh();
  void UpdateAvailability();
  // A running search gives up.
  void GiveUp() { blnSearching = false; }

  void Form_Load() override;
  void Form_Activate() override;
  void Form_KeyPress(int& key) override;

 private:
  // What all that is shown follows from; a step of a move tells of a change several times.
  struct Shown {
    UniversalTime moment;
    PlaceReading reading;
    std::optional<PhaseNumber> described;
    friend bool operator==(const Shown&, const Shown&) = default;
  };

  PlaceReading Reading() const;
  std::optional<EclipseRecord> EclipseOnDisplay() const;
  void ShowMoment(const PlaceReading& reading);
  void ShowDay(const PlaceReading& reading);
  void ShowLunation(const PlaceReading& reading);
  void ShowEclipse(const std::optional<EclipseRecord>& record, const PlaceReading& reading);
  void ShowContacts(const std::vector<TimedLine>& contacts);
  void ShowMap(const std::optional<EclipseRecord>& record, const PlaceReading& reading);
  void FinishMap();
  void tmrMap_Timer();
  void Map_Click(DrawingPoint point);
  void cmdSaveMap_Click();
  void FindHere(bool forward);
  std::optional<SeenEclipse> Search(bool forward);

  Desktop& desktop_;
  Session& session_;
  EntrySection& entry_;
  frmNotice& notice_;
  std::optional<Shown> shown_;
  std::optional<SkyMap> map_;  // once the window has been loaded
  bool blnSearching = false;   // a search is to go on
};

}  // namespace tarnwick
