// The way to the lunation calendar: the list of the calendars in which it can be laid out, and the
// button that opens its window.
#pragma once

#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/form.h"
#include "controls/picture_files.h"
#include "help/notice.h"
#include "lunation_view/calendar_window.h"
#include "moment/entry_section.h"
#include "moment/session.h"

namespace tarnwick {

class CalendarSection {
 public:
  CalendarSection(Form& form, Screen& screen, Session& session, Desktop& desktop,
                  EntrySection& entry, PictureFiles& pictures, frmNotice& notice);

  ComboBox cboMonthCalendar;
  Button cmdDisplayCalendar;

  frmCalendar calendar_window;

 private:
  void cboMonthCalendar_Click();
  void cmdDisplayCalendar_Click();
  void TakeDay(DayNumber day_number);

  Session& session_;
  EntrySection& entry_;
};

}  // namespace tarnwick
