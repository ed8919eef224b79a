#include "moment/session.h"

#include <utility>

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

void Session::SetEclipseText(std::string text) {
  eclipse_text_ = std::move(text);
  hooks.eclipse_changed();
}

void Session::MarkEclipse(std::int32_t lunation, std::int16_t phase) {
  lngEclipseLunation = lunation;
  intEclipsePhase = phase;
}

void Session::ClearEclipse() {
  SetEclipseText("");
  ForgetEclipseMark();
}

void Session::SetActivity(Activity activity) {
  if (blnEnding || activity == activity_) return;
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
