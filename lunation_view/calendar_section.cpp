#include "lunation_view/calendar_section.h"

#include <string>

#include "calendars/date_processing.h"
#include "lunation_view/month_calendar.h"

namespace tarnwick {

CalendarSection::CalendarSection(Form& form, Screen& screen, Session& session, Desktop& desktop,
                                 EntrySection& entry, PictureFiles& pictures, frmNotice& notice)
    : cboMonthCalendar(form, "cboMonthCalendar"),
      cmdDisplayCalendar(form, "cmdDisplayCalendar", "Lunation calendar"),
      calendar_window(desktop, screen, session, pictures, notice),
      session_(session),
      entry_(entry) {
  for (const std::string_view dates : kMonthCalendars) cboMonthCalendar.AddItem(std::string(dates));
  cboMonthCalendar.on_click = [this] { cboMonthCalendar_Click(); };
  cboMonthCalendar.SetListIndex(0);
  cboMonthCalendar.SetToolTipText("The calendar of the dates on the page of the lunation");
  cmdDisplayCalendar.SetToolTipText("The days of the current lunation on one page");
  cmdDisplayCalendar.on_click = [this] { cmdDisplayCalendar_Click(); };
  calendar_window.on_day_click = [this](DayNumber day_number) { TakeDay(day_number); };
}

void CalendarSection::cboMonthCalendar_Click() {
  calendar_window.SetMonthCalendar(cboMonthCalendar.ListIndex());
}

void CalendarSection::cmdDisplayCalendar_Click() {
  calendar_window.ShowCurrentLunation();
  calendar_window.Show();
}

// Makes noon of the day the current moment, unless a move or a search is running.
void CalendarSection::TakeDay(DayNumber day_number) {
  if (!session_.IsIdle()) return;
  const UniversalTime noon = NoonOf(day_number, session_.ReadingOffset());
  if (!entry_.DateOutOfRange(noon)) entry_.TakeMoment(noon, "Lunation calendar");
}

}  // namespace tarnwick
