// One moment, nine ways: its time and its date in every calendar, each of which can be clicked to
// copy it to the entry box.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "calendars/calendar_table.h"
#include "controls/control_array.h"
#include "controls/controls.h"
#include "controls/form.h"
#include "moment/entry_section.h"
#include "moment/session.h"

namespace tarnwick {

using ValueLabel = ControlArray<Label, 2>;  // 0: what it is, 1: the value

class DatesSection {
 public:
  DatesSection(Form& form, Session& session, EntrySection& entry);

  ValueLabel lblTime;
  ValueLabel lblCommonEraDate;
  ValueLabel lblJulianCalendarDate;
  ValueLabel lblArchetypesDate;
  ValueLabel lblSarvikDolmerSLCDate;
  ValueLabel lblLTCLunarDate;
  ValueLabel lblKSGDate;
  ValueLabel lblOstrelLWCDate;
  ValueLabel lblChronologicalJulianDate;
  ValueLabel lblAstronomicalJulianDate;

  // The label array of a calendar.
  ValueLabel& LabelOf(Calendar calendar) { return *labels_[static_cast<std::size_t>(calendar)]; }

  const ValueLabel& LabelOf(Calendar calendar) const {
    return *labels_[static_cast<std::size_t>(calendar)];
  }

  // The time and the nine dates as they are shown, a line each, ended by CR LF.
  std::string AllDatesText() const;

  // Shows the moment; returns it in the current calendar, in short form.
  std::string Show();
  // Sets the current calendar apart, and shows the time as it counts the day.
  void ShowCalendar();

 private:
  void MarkCurrentCalendar();
  void DisplayTime();
  std::string DisplayAllDates();
  void Label_Click(Calendar calendar, int index);
  void lblTime_Click();

  Session& session_;
  EntrySection& entry_;
  std::array<ValueLabel*, kCalendarCount> labels_;
};

}  // namespace tarnwick
