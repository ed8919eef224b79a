#include "lunation_view/calendar_window.h"

#include <filesystem>

#include "calendars/date_processing.h"
#include "controls/choice.h"
#include "controls/save_path.h"
#include "lunation_view/printed_lunations.h"

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
  cmdPrintLunation.SetToolTipText("Print the page on display");
  cmdPrintLunation.on_click = [this] { cmdPrintLunation_Click(); };
  cmdPrintYear.SetToolTipText("Print the pages of all lunations of the year on display");
  cmdPrintYear.on_click = [this] { cmdPrintYear_Click(); };
  cmdSavePDF.SetToolTipText("Save the page on display as a file to be printed");
  cmdSavePDF.on_click = [this] { cmdSavePDF_Click(); };
  cmdSaveYearPDF.SetToolTipText("Save the pages of all lunations of the year on display");
  cmdSaveYearPDF.on_click = [this] { cmdSaveYearPDF_Click(); };
  for (const PaperSize paper : {PaperSize::kA4, PaperSize::kLetter}) {
    cboPaper.AddItem(std::string(PaperName(paper)));
  }
  cboPaper.SetToolTipText("The paper that the pages are made for");
  cmdSaveCalendarImage.on_click = [this] { cmdSaveCalendarImage_Click(); };
}

// A picture belongs to a cell, not to a date: "day1.gif" is that of the first cell.
void frmCalendar::Form_Load() {
  cboPaper.SetListIndex(static_cast<int>(desktop_.UsualPaper()));
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

PrintedGrids frmCalendar::LunationToPrint() const {
  return PrintedLunations(grid_.title, {lngLunation, lngLunation}, Reading());
}

PrintedGrids frmCalendar::YearToPrint() const {
  return PrintedLunations("Year " + YearOfLunation(lngLunation, Reading()),
                          LunationsOfYear(lngLunation, Reading()), Reading());
}

void frmCalendar::Print(const Button& button, const PrintedGrids& pages) {
  const std::string error = desktop_.Print(pages, Paper());
  if (error.empty()) return;
  desktop_.ShowMessage(
      {"Error when attempting to print: " + error, button.Caption(), MessageIcon::kExclamation});
}

void frmCalendar::SavePDF(const Button& button, const PrintedGrids& pages,
                          const std::string& suggestion) {
  const auto file = AskWhereToSave(desktop_, button.Caption(), suggestion + ".pdf");
  if (file)
    notice_.TellOfSaving(desktop_, *this, "the PDF file", button.Caption(),
                         desktop_.SavePDF(pages, *file, Paper()));
}

void frmCalendar::cmdPrintLunation_Click() { Print(cmdPrintLunation, LunationToPrint()); }

void frmCalendar::cmdPrintYear_Click() { Print(cmdPrintYear, YearToPrint()); }

void frmCalendar::cmdSavePDF_Click() { SavePDF(cmdSavePDF, LunationToPrint(), LunationName()); }

void frmCalendar::cmdSaveYearPDF_Click() {
  SavePDF(cmdSaveYearPDF, YearToPrint(), "year " + YearOfLunation(lngLunation, Reading()));
}

void frmCalendar::cmdSaveCalendarImage_Click() {
  const auto file =
      AskWhereToSave(desktop_, cmdSaveCalendarImage.Caption(), LunationName() + ".png");
  if (!file) return;
  notice_.TellOfSaving(desktop_, *this, "the image", cmdSaveCalendarImage.Caption(),
                       desktop_.SaveImage(fraCalendar, *file));
}

}  // namespace tarnwick
