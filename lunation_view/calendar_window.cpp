#include "lunation_view/calendar_window.h"

#include <filesystem>

#include "calendars/date_processing.h"
#include "controls/choice.h"
#include "controls/save_path.h"

namespace tarnwick {
namespace {

constexpr Color kTitleColor{255, 255, 0};
constexpr char kCaption[] = "Lunation calendar";

}  // namespace

frmCalendar::frmCalendar(Desktop& desktop, Screen& screen, Session& session, PictureFiles& pictures,
                         frmNotice& notice)
    : ClosableForm(screen, "frmCalendar", kCaption),
      desktop_(desktop),
      session_(session),
      pictures_(pictures),
      notice_(notice) {
  lblTitle.SetForeColor(kTitleColor);
  for (int column = 0; column < kGridColumns; ++column) {
    Label& heading = lblWeekday[static_cast<std::size_t>(column)];
    heading.SetCaption(WeekdayHeading(column));
    heading.SetToolTipText(std::string(kLunarWeekNote));
  }
  for (std::size_t i = 0; i < kGridCells; ++i) {
    imgMoon[i].on_click = lblDate[i].on_click = lblCEDate[i].on_click =
        lblEvent[i].on_click = [this, i] { Cell_Click(i); };
    HideCell(i);
  }
  constexpr const char* kDirections[] = {"previous", "next"};
  for (int i = 0; i < 2; ++i) {
    Button& button = cmdShowPreviousOrNext[static_cast<std::size_t>(i)];
    button.SetCaption(std::string("Show ") + kDirections[i] + " lunation");
    button.SetToolTipText(std::string("Display ") + kDirections[i] + " lunation");
    button.on_click = [this, i] { cmdShowPreviousOrNext_Click(i); };
  }
  AddShortcut("Page_Up", cmdShowPreviousOrNext[0]);
  AddShortcut("Page_Down", cmdShowPreviousOrNext[1]);
  cmdSaveCalendarImage.on_click = [this] { cmdSaveCalendarImage_Click(); };
}

// A picture belongs to a cell, not to a date: "day1.gif" is that of the first cell.
void frmCalendar::Form_Load() {
  for (int i = 0; i < kGridCells; ++i) {
    if (!IsCellUsed(i)) continue;
    imgMoon[static_cast<std::size_t>(i)].SetPicture(
        pictures_.Find("moon_pics/day" + std::to_string(i + 1) + ".gif"));
  }
}

void frmCalendar::Form_Activate() { cmdShowPreviousOrNext[1].SetFocus(); }

GridReading frmCalendar::Reading() const { return {intMonthCalendar, session_.ReadingOffset()}; }

void frmCalendar::ShowCurrentLunation() {
  lngLunation = lngCurrentLunation = LunationOfDay(session_.Moment(), Reading());
  ShowLunation();
}

void frmCalendar::SetMonthCalendar(int month_calendar) {
  intMonthCalendar = month_calendar;
  Refresh();
}

void frmCalendar::Refresh() {
  if (!Visible()) return;
  const bool follows = lngLunation == lngCurrentLunation;
  lngCurrentLunation = LunationOfDay(session_.Moment(), Reading());
  if (follows) lngLunation = lngCurrentLunation;
  ShowLunation();
}

void frmCalendar::ShowLunation() {
  grid_ = MakeLunationGrid(lngLunation, Reading());
  lblTitle.SetCaption(grid_.title);
  lblYearAndMonth.SetCaption(grid_.year_and_month);
  const DayNumber current_day = SplitCJD(session_.LocalMoment()).day_number;
  for (std::size_t i = 0; i < kGridCells; ++i) {
    if (grid_.cells[i]) {
      ShowCell(i, current_day);
    } else {
      HideCell(i);
    }
  }
}

void frmCalendar::ShowCell(std::size_t index, DayNumber current_day) {
  const GridCell& cell = *grid_.cells[index];
  imgMoon[index].SetDescription(cell.moon);
  lblDate[index].SetCaption(cell.date);
  ShowSelected(lblDate[index], cell.day_number == current_day);
  lblCEDate[index].SetCaption(cell.ce_date);
  lblEvent[index].SetCaption(cell.event);
  for (Control* control : std::initializer_list<Control*>{&imgMoon[index], &lblDate[index],
                                                          &lblCEDate[index], &lblEvent[index]}) {
    control->SetToolTipText(cell.tool_tip);
    control->SetVisible(true);
  }
}

void frmCalendar::HideCell(std::size_t index) {
  for (Control* control : std::initializer_list<Control*>{&imgMoon[index], &lblDate[index],
                                                          &lblCEDate[index], &lblEvent[index]}) {
    control->SetVisible(false);
  }
}

void frmCalendar::Cell_Click(std::size_t index) {
  if (grid_.cells[index]) on_day_click(grid_.cells[index]->day_number);
}

void frmCalendar::cmdShowPreviousOrNext_Click(int index) {
  const bool next = index == 1;
  if (lngLunation == (next ? kLastLunation : kFirstLunation)) {
    desktop_.ShowMessage({std::string("This is the ") + (next ? "latest" : "earliest") +
                              " lunation which can be displayed.",
                          kCaption, MessageIcon::kInformation});
    return;
  }
  lngLunation += next ? 1 : -1;
  ShowLunation();
}

void frmCalendar::cmdSaveCalendarImage_Click() {
  const std::string title = cmdSaveCalendarImage.Caption();
  const auto file =
      AskWhereToSave(desktop_, title, "lunation " + std::to_string(lngLunation) + ".png");
  if (!file) return;
  const std::string error = desktop_.SaveImage(fraCalendar, *file);
  if (error.empty()) {
    notice_.ShowOver(*this, "Saved");
  } else {
    ReportSaveError(desktop_, "the image", title, error);
  }
}

}  // namespace tarnwick
