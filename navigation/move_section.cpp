#include "navigation/move_section.h"

#include <cmath>
#include <cstddef>
#include <optional>

#include "calendars/text.h"
#include "controls/choice.h"
#include "navigation/operation.h"
#include "navigation/step.h"

namespace tarnwick {
namespace {

constexpr int kOneSecondPeriod = 2;  // its place in the list of refresh periods
constexpr int kMillisecondsPerSecond = 1000;

}  // namespace

MoveSection::MoveSection(Form& form, Session& session, Desktop& desktop, EntrySection& entry,
                         const DatesSection& dates, Timer& clock)
    : fraMove(form, "fraMove", "Move"),
      fraStopPauseResume(form, "fraStopPauseResume"),
      lblRefreshPeriod(form, "lblRefreshPeriod", "seconds a step"),
      cboRefreshPeriod(form, "cboRefreshPeriod"),
      form_(form),
      session_(session),
      desktop_(desktop),
      entry_(entry),
      dates_(dates),
      clock_(clock) {
  optMoveDirection[0].SetCaption("forward");
  optMoveDirection[1].SetCaption("back");
  for (int i = 0; i < kStepCount; ++i) cboMoveStep.AddItem(std::string(StepText(i)));
  for (const char* const seconds : {"0.2", "0.5", "1", "2", "5"}) cboRefreshPeriod.AddItem(seconds);
  fraStopPauseResume.SetVisible(false);
  chkRepeatedly.SetToolTipText("Move goes on step by step until Stop or a limit");
  lblRefreshPeriod.SetToolTipText("The pace of a repeated move, which can change while it pauses");
  cmdMove.on_click = [this] { cmdMove_Click(); };
  cmdStop.on_click = [this] { cmdStop_Click(); };
  cmdPauseResume.on_click = [this] { cmdPauseResume_Click(); };
  cboMoveStep.on_click = [this] { session_.hooks.focus_on_move(); };
  cboRefreshPeriod.on_click = [this] { cboRefreshPeriod_Click(); };
  chkRepeatedly.on_click = [this] { chkRepeatedly_Click(); };
  optMoveDirection[0].on_click = [this] { optMoveDirection_Click(0); };
  optMoveDirection[1].on_click = [this] { optMoveDirection_Click(1); };
  SetDefaults();
  ShowChoice(chkRepeatedly);
}

void MoveSection::SetDefaults() {
  optMoveDirection[0].SetValue(true);
  chkRepeatedly.SetValue(false);
  cboMoveStep.SetListIndex(kOneDayStep);
  cboRefreshPeriod.SetListIndex(kOneSecondPeriod);
}

void MoveSection::UpdateAvailability() {
  SetEnabled({&fraMove, &cmdMove}, session_.IsIdle());
  SetEnabled({&lblRefreshPeriod, &cboRefreshPeriod}, session_.IsIdle() || session_.IsPaused());
  fraStopPauseResume.SetVisible(session_.IsMoving());
  cmdPauseResume.SetCaption(session_.IsPaused() ? "Resume" : "Pause");
}

void MoveSection::TakeFocus() { cmdMove.SetFocus(); }

std::string MoveSection::MoveOperation() const {
  return std::string("Move") + (optMoveDirection[0].Value() ? " forward " : " back ") +
         cboMoveStep.Text() + (chkRepeatedly.Value() ? " repeatedly." : ".");
}

void MoveSection::cmdMove_Click() {
  CarryOut(session_, desktop_, form_.Caption(), [this] {
    if (!entry_.TakeUpTypedMoment()) return;
    session_.ClearEclipse();
    session_.SetClockRunning(false);
    const std::string operation = MoveOperation();
    const std::string summary = chkRepeatedly.Value() ? MoveRepeatedly() : Move();
    if (session_.IsEnding()) return;
    session_.hooks.finish({summary, operation});
    session_.hooks.focus_on_move();
  });
}

// One step; meanwhile the program can be ended, and nothing else.
std::string MoveSection::Move() {
  std::string summary = MakeStep();
  if (!RangeExceeded(session_, desktop_)) desktop_.Yield(YieldMode::kOnlyQuitting);
  return summary;
}

// Makes the steps as they come due and returns the last date. In between it sleeps until something
// happens; ticks, Pause, Resume and Stop come in meanwhile.
std::string MoveSection::MoveRepeatedly() {
  const ActivityScope moving(session_, Activity::kMoving);
  cmdStop.SetFocus();
  SetClockToRefreshPeriod();
  clock_.SetEnabled(true);
  std::string summary;
  blnRepeating = true;
  blnStepDue = true;
  while (blnRepeating && !session_.IsEnding()) {
    // A tick and Pause may come in during one sleep.
    if (blnStepDue && !session_.IsPaused()) {
      blnStepDue = false;
      summary = MakeStep();
      if (RangeExceeded(session_, desktop_)) break;
    }
    desktop_.Yield(YieldMode::kWait);
  }
  session_.SetClockRunning(false);
  return summary;
}

std::string MoveSection::MakeStep() {
  const int step = cboMoveStep.ListIndex();
  const std::string& olw = dates_.lblOstrelLWCDate[1].Caption();
  session_.SetMoment(StepMoment(step, optMoveDirection[0].Value(), session_.Moment(),
                                session_.ReadingOffset(),
                                std::string_view(olw).substr(0, olw.find(' '))));
  if (const auto calendar = StepCalendar(step)) session_.SetCalendar(*calendar);
  std::string summary = session_.hooks.show_moment();
  entry_.CopyDateToEntryBox();
  return summary;
}

void MoveSection::SetClockToRefreshPeriod() {
  clock_.SetInterval(static_cast<int>(
      std::lround(LeadingNumber(cboRefreshPeriod.Text()) * kMillisecondsPerSecond)));
}

void MoveSection::cmdStop_Click() { blnRepeating = false; }

void MoveSection::cmdPauseResume_Click() {
  const bool pause = !session_.IsPaused();
  session_.SetActivity(pause ? Activity::kPaused : Activity::kMoving);
  clock_.SetEnabled(!pause);
  (pause ? cmdPauseResume : cmdStop).SetFocus();
}

void MoveSection::cboRefreshPeriod_Click() {
  if (!session_.IsPaused()) return;
  SetClockToRefreshPeriod();
  cmdPauseResume.SetFocus();
}

void MoveSection::chkRepeatedly_Click() {
  ShowChoice(chkRepeatedly);
  session_.hooks.focus_on_move();
}

void MoveSection::optMoveDirection_Click(int index) {
  const auto chosen = static_cast<std::size_t>(index);
  ShowChoice(optMoveDirection[chosen], optMoveDirection[1 - chosen]);
  session_.hooks.focus_on_move();
}

}  // namespace tarnwick
