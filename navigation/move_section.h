// Move: the moment goes on or back by a step, once or repeatedly.
#pragma once

#include <string>

#include "controls/control_array.h"
#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/form.h"
#include "moment/dates_section.h"
#include "moment/entry_section.h"
#include "moment/session.h"

namespace tarnwick {

class MoveSection {
 public:
  // `clock` paces a repeated move.
  MoveSection(Form& form, Session& session, Desktop& desktop, EntrySection& entry,
              const DatesSection& dates, Timer& clock);

  Frame fraMove;
  Frame fraMoveStep{fraMove, "fraMoveStep", "Step"};
  ComboBox cboMoveStep{fraMoveStep, "cboMoveStep"};
  Frame fraMoveDirection{fraMove, "fraMoveDirection", "Direction"};
  OptionGroup grpMoveDirection;
  ControlArray<OptionButton, 2> optMoveDirection{fraMoveDirection, "optMoveDirection",
                                                 grpMoveDirection};  // 0 forward, 1 back
  CheckBox chkRepeatedly{fraMove, "chkRepeatedly", "repeatedly"};
  Button cmdMove{fraMove, "cmdMove", "Move"};
  Frame fraStopPauseResume;  // shown during a repeated move
  Button cmdStop{fraStopPauseResume, "cmdStop", "Stop"};
  Button cmdPauseResume{fraStopPauseResume, "cmdPauseResume", "Pause"};
  Label lblRefreshPeriod;
  ComboBox cboRefreshPeriod;

  void SetDefaults();
  void UpdateAvailability();
  void TakeFocus();
  // A repeated move ends.
  void Stop() { cmdStop_Click(); }
  // The next step of a running move is due.
  void Clock_Timer() { blnStepDue = true; }

 private:
  void cmdMove_Click();
  void cmdStop_Click();
  void cmdPauseResume_Click();
  void cboRefreshPeriod_Click();
  void chkRepeatedly_Click();
  void optMoveDirection_Click(int index);
  void SetClockToRefreshPeriod();
  std::string Move();
  std::string MoveRepeatedly();
  std::string MakeStep();
  std::string MoveOperation() const;

  Form& form_;
  Session& session_;
  Desktop& desktop_;
  EntrySection& entry_;
  const DatesSection& dates_;
  Timer& clock_;
  bool blnRepeating = false;  // a repeated move is to go on
  bool blnStepDue = false;    // its next step is to be made now
};

}  // namespace tarnwick
