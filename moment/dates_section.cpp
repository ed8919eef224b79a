#include "moment/dates_section.h"

#include "calendars/date_texts.h"
#include "controls/choice.h"

namespace tarnwick {
namespace {

// The time system in which the time stands.
std::string TimeSuffix(const Session& session) {
  const bool greenwich = session.IsGreenwich();
  if (session.CurrentCalendar() == kOLW) {
    return greenwich ? " (Greenwich OLW)" : " (local OLW)";
  }
  if (session.ZoneOffset() == 0) return greenwich ? " (GMT=local)" : " (local=GMT)";
  return greenwich ? " (GMT)" : " (local)";
}

}  // namespace

DatesSection::DatesSection(Form& form, Session& session, EntrySection& entry)
    : lblTime(form, "lblTime"),
      lblCommonEraDate(form, "lblCommonEraDate"),
      lblJulianCalendarDate(form, "lblJulianCalendarDate"),
      lblArchetypesDate(form, "lblArchetypesDate"),
      lblSarvikDolmerSLCDate(form, "lblSarvikDolmerSLCDate"),
      lblLTCLunarDate(form, "lblLTCLunarDate"),
      lblKSGDate(form, "lblKSGDate"),
      lblOstrelLWCDate(form, "lblOstrelLWCDate"),
      lblChronologicalJulianDate(form, "lblChronologicalJulianDate"),
      lblAstronomicalJulianDate(form, "lblAstronomicalJulianDate"),
      session_(session),
      entry_(entry),
      labels_{&lblCommonEraDate,           &lblJulianCalendarDate,     &lblArchetypesDate,
              &lblSarvikDolmerSLCDate,     &lblLTCLunarDate,           &lblKSGDate,
              &lblChronologicalJulianDate, &lblAstronomicalJulianDate, &lblOstrelLWCDate} {
  lblTime[0].SetCaption("Time");
  lblTime[0].SetToolTipText(
      "The time of day where the moment is read; in OLW counted from 6 hours");
  lblTime[1].on_click = [this] { lblTime_Click(); };
  for (const Calendar calendar : kCalendars) {
    ValueLabel& label = LabelOf(calendar);
    label[0].SetCaption(std::string(AbbreviationOf(calendar)));
    label[0].SetToolTipText(std::string(RowOf(calendar).explanation));
    for (int index = 0; index < 2; ++index) {
      label[static_cast<std::size_t>(index)].on_click = [this, calendar, index] {
        Label_Click(calendar, index);
      };
    }
  }
}

void DatesSection::ShowCalendar() {
  MarkCurrentCalendar();
  DisplayTime();
}

std::string DatesSection::Show() {
  DisplayTime();
  return DisplayAllDates();
}

void DatesSection::DisplayTime() {
  lblTime[1].SetCaption(session_.TimeText() + TimeSuffix(session_));
}

std::string DatesSection::DisplayAllDates() {
  std::string summary;
  for (const Calendar calendar : kCalendars) {
    const DateTexts texts = DateTextsOf(calendar, session_.Moment(), session_.ReadingOffset());
    Label& label = LabelOf(calendar)[1];
    label.SetCaption(texts.long_form);
    label.SetToolTipText(texts.tool_tip);
    if (calendar == session_.CurrentCalendar()) summary = texts.short_form;
  }
  MarkCurrentCalendar();
  return summary;
}

std::string DatesSection::AllDatesText() const {
  std::string text = lblTime[1].Caption() + "\r\n";
  for (const Calendar calendar : kDisplayOrder) text += LabelOf(calendar)[1].Caption() + "\r\n";
  return text;
}

void DatesSection::MarkCurrentCalendar() {
  for (const Calendar calendar : kCalendars) {
    ShowSelected(LabelOf(calendar)[1], calendar == session_.CurrentCalendar());
  }
}

// The label is of no use while the program is busy: what it shows changes by itself.
void DatesSection::Label_Click(Calendar calendar, int index) {
  if (!session_.IsIdle()) return;
  session_.SetCalendar(calendar);
  if (index == 1) {
    entry_.CopyDateToEntryBox();
  } else {
    session_.hooks.focus_on_date();
  }
}

void DatesSection::lblTime_Click() {
  if (session_.IsIdle()) entry_.CopyTimeToEntryBox();
}

}  // namespace tarnwick
