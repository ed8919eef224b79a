#include "moment/session.h"

#include "calendars/date_processing.h"

namespace tarnwick {

void Session::SetCalendar(Calendar calendar) {
  intCalendar = calendar;
  hooks.calendar_changed();
}

LocalCJD Session::LocalMoment() const { return AJDToCJD(dblMoment, ReadingOffset()); }

std::string Session::TimeText() const {
  return TimeOfDayText(SplitCJD(LocalMoment() - RowOf(intCalendar).day_shift).fraction, false);
}

void Session::SetGreenwich(bool greenwich) {
  greenwich_ = greenwich;
  hooks.eclipse_changed();
}

void Session::DescribeEclipse(std::optional<PhaseNumber> syzygy) {
  described_eclipse_ = syzygy;
  hooks.eclipse_changed();
}

void Session::TakeEclipse(const PhaseNumber& syzygy) {
  lngEclipseLunation = syzygy.lunation;
  intEclipsePhase = syzygy.phase;
  DescribeEclipse(syzygy);
}

void Session::ClearEclipse() {
  lngEclipseLunation = kNoEclipse;
  DescribeEclipse(std::nullopt);
}

void Session::SetActivity(Activity activity) {
  if (blnEnding) return;
  activity_ = activity;
  hooks.activity_changed();
}

void Session::End() {
  activity_ = Activity::kIdle;
  blnEnding = true;
}

void Session::SetClockRunning(bool running) {
  blnClockRunning = running;
  hooks.clock_changed();
}

}  // namespace tarnwick
