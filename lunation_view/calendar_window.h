// The window of the lunation calendar: one lunation as a page that can be leafed through, clicked,
// printed and saved as a picture.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

#include "controls/closable_form.h"
#include "controls/control_array.h"
#include "controls/controls.h"
#include "controls/desktop.h"
#include "controls/picture_files.h"
#include "controls/printing.h"
#include "help/notice.h"
#include "lunation_view/lunation_grid.h"
#include "moment/session.h"

namespace tarnwick {

class frmCalendar final : public ClosableForm {
 public:
  frmCalendar(Desktop& desktop, Screen& screen, Session& session, PictureFiles& pictures,
              frmNotice& notice);

  Frame fraCalendar{*this, "fraCalendar"};  // the page
  Label lblTitle{fraCalendar, "lblTitle"};
  Label lblYearAndMonth{fraCalendar, "lblYearAndMonth"};
  ControlArray<Label, kGridColumns> lblWeekday{fraCalendar, "lblWeekday"};
  // Of each cell: the Moon, the date in the chosen calendar and in CE, what happens on the day.
  ControlArray<Picture, kGridCells> imgMoon{fraCalendar, "imgMoon"};
  ControlArray<Label, kGridCells> lblDate{fraCalendar, "lblDate"};
  ControlArray<Label, kGridCells> lblCEDate{fraCalendar, "lblCEDate"};
  ControlArray<Label, kGridCells> lblEvent{fraCalendar, "lblEvent"};
  ControlArray<Button, 2> cmdShowPreviousOrNext{*this, "cmdShowPreviousOrNext"};
  Button cmdPrintLunation{*this, "cmdPrintLunation", "Print"};
  Button cmdPrintYear{*this, "cmdPrintYear", "Print year"};
  Button cmdSavePDF{*this, "cmdSavePDF", "Save as PDF"};
  Button cmdSaveYearPDF{*this, "cmdSaveYearPDF", "Save year as PDF"};
  ComboBox cboPaper{*this, "cboPaper"};  // in the order of PaperSize
  Button cmdSaveCalendarImage{*this, "cmdSaveCalendarImage", "Save as PNG image"};

  // The user has chosen a day of the page.
  std::function<void(DayNumber day_number)> on_day_click;

  // The calendar in which pages are laid out, by its place in kMonthCalendars.
  void SetMonthCalendar(int month_calendar);
  // Shows the lunation that the day of the current moment belongs to.
  void ShowCurrentLunation();
  // Draws the page again, if it is on display: a setting or the current moment has changed. A page
  // with the former moment goes along with it; one that the user has turned to stays.
  void Refresh();

  void Form_Load() override;
  void Form_Activate() override;

 private:
  GridReading Reading() const;
  void ShowLunation();
  void ShowCell(std::size_t index, DayNumber current_day);
  void HideCell(std::size_t index);
  void Cell_Click(std::size_t index);
  void cmdShowPreviousOrNext_Click(int index);
  PaperSize Paper() const { return static_cast<PaperSize>(cboPaper.ListIndex()); }
  // The page on display, the pages of its year.
  PrintedGrids LunationToPrint() const;
  PrintedGrids YearToPrint() const;
  void Print(const Button& button, const PrintedGrids& pages);
  void SavePDF(const Button& button, const PrintedGrids& pages, const std::string& suggestion);
  void cmdPrintLunation_Click();
  void cmdPrintYear_Click();
  void cmdSavePDF_Click();
  void cmdSaveYearPDF_Click();
  void cmdSaveCalendarImage_Click();
  std::string LunationName() const { return "lunation " + std::to_string(lngLunation); }

  Desktop& desktop_;
  Session& session_;
  PictureFiles& pictures_;
  frmNotice& notice_;
  int intMonthCalendar = 0;
  std::int32_t lngLunation = 0;
  std::int32_t lngCurrentLunation = 0;  // that of the current moment when the page was last drawn
  LunationGrid grid_;
};

}  // namespace tarnwick
