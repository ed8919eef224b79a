#include "desktop/main_window_view.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "calendars/calendar_table.h"
#include "desktop/bound_widgets.h"
#include "desktop/characters.h"
#include "desktop/look.h"
#include "desktop/panel.h"
#include "desktop/twips.h"
#include "lunation_view/month_calendar.h"

namespace tarnwick {
namespace {

const Wording kWordings[] = {
    {"txbDate", 0, "Date and time"},
    {"optPlus", 'p', ""},
    {"optMinus", 'm', ""},
    {"txbPlusMinus", 0, "Days to add or subtract"},
    {"lblDays", 'd', ""},
    {"cmdCompute", 'C', ""},
    {"cmdClearDate", 'l', ""},
    {"cmdNow", 'N', ""},
    {"picCheck", 0, "The clock is running"},
    {"optGreenwich", 'G', ""},
    {"optLocal", 'o', ""},
    {"lblTimeZone", 'z', ""},
    {"cboTimeZone", 0, "Time zone"},
    {"lblTime(1)", 0, "Time"},
    {"lblCommonEraDate(1)", 0, RowOf(kCE).spoken_name},
    {"lblJulianCalendarDate(1)", 0, RowOf(kJC).spoken_name},
    {"lblArchetypesDate(1)", 0, RowOf(kARC).spoken_name},
    {"lblSarvikDolmerSLCDate(1)", 0, RowOf(kSD).spoken_name},
    {"lblLTCLunarDate(1)", 0, RowOf(kLLT).spoken_name},
    {"lblKSGDate(1)", 0, RowOf(kKSG).spoken_name},
    {"lblOstrelLWCDate(1)", 0, RowOf(kOLW).spoken_name},
    {"lblChronologicalJulianDate(1)", 0, RowOf(kCJD).spoken_name},
    {"lblAstronomicalJulianDate(1)", 0, RowOf(kAJD).spoken_name},
    {"picMoon", 0, "The Moon at the moment"},
    {"lblPhaseOfMoon(1)", 0, "Phase of the Moon"},
    {"lblAgeOfMoon(1)", 0, "Age of the Moon"},
    {"lblDeltaT(1)", 0, "Delta T"},
    {"cboMoveStep", 0, "Step"},
    {"optMoveDirection(0)", 'f', ""},
    {"optMoveDirection(1)", 'b', ""},
    {"chkRepeatedly", 'y', ""},
    {"cmdMove", 'v', ""},
    {"fraStopPauseResume", 0, "Repeated move"},
    {"cmdStop", 't', ""},
    {"cmdPauseResume", 'u', ""},
    {"lblRefreshPeriod", 'e', ""},
    {"cboRefreshPeriod", 0, "Seconds a step"},
    {"cboTarget", 0, "Target of the search"},
    {"optNext", 'x', ""},
    {"optPrevious", 'i', ""},
    {"cmdSearch", 'S', ""},
    {"lblActualEclipseData", 0, "Eclipse"},
    {"cboHistory", 0, "History"},
    {"chkLog", 'a', ""},
    {"cmdLogThisResult", 'h', ""},
    {"cmdViewLog", 'w', ""},
    {"cmdLogPreferences", 0, "", "Ctrl+P"},
    {"cmdReset", 'R', ""},
    {"cmdSaveState", 0, "", "Ctrl+S"},
    {"cboMonthCalendar", 0, "Calendar of the lunation"},
    {"cmdDisplayCalendar", 0, "", "Ctrl+L"},
    {"cmdHelp", 0, "", "F1"},
    {"cmdQuit", 'Q', ""},
};

QString WidestCalendar(const QFontMetrics& font) {
  QString widest;
  for (const std::string_view dates : kMonthCalendars) {
    const QString text = ToQt(std::string(dates));
    if (font.horizontalAdvance(text) > font.horizontalAdvance(widest)) widest = text;
  }
  return widest;
}

}  // namespace

MainWindowView::MainWindowView(frmMain& form, HandlerGate& gate)
    : form_(form), binder_(gate, kWordings) {
  const int space = Spacing(*this);
  QVBoxLayout* sections = MakeSections(*this);
  sections->addWidget(MakeConvertPanel());

  auto* moment = new QHBoxLayout;
  moment->setSpacing(space);
  moment->addWidget(MakeDatesPanel(), 3);
  moment->addWidget(MakeMoonPanel(), 2);
  sections->addLayout(moment, 1);

  auto* navigation = new QHBoxLayout;
  navigation->setSpacing(space);
  navigation->addWidget(MakeMovePanel(), 1);
  navigation->addWidget(MakeSearchPanel(), 1);
  navigation->addWidget(MakeResultPanel(), 1);
  sections->addLayout(navigation);

  auto* records = new QHBoxLayout;
  records->setSpacing(space);
  records->addWidget(MakeHistoryPanel(), 2);
  records->addWidget(MakeLogPanel(), 3);
  sections->addLayout(records);
  sections->addWidget(MakeButtons());

  binder_.Bind(form_.Clock, clock_);
  resize(sizeHint());
  binder_.Bind(form_, *this);
}

// The place of a label follows from the layout, which has been made by then.
void MainWindowView::ReportPlace() {
  Label& label = form_.lblOstrelLWCDate[1];
  const QWidget& shown = *WidgetOf(label);
  label.SetBounds(ToTwips({shown.mapTo(this, QPoint()), shown.size()}));
}

void MainWindowView::showEvent(QShowEvent* /*event*/) { ReportPlace(); }

void MainWindowView::resizeEvent(QResizeEvent* /*event*/) { ReportPlace(); }

QWidget* MainWindowView::MakeButtons() {
  QWidget* area = MakeArea(Spacing(*this), this);
  auto* row = static_cast<QHBoxLayout*>(area->layout());
  row->addWidget(MakeButton(binder_, form_.cmdReset, area));
  row->addWidget(MakeButton(binder_, form_.cmdSaveState, area));
  row->addStretch();
  auto* calendars = new QComboBox(area);
  ReserveWidth(*calendars, WidestCalendar(calendars->fontMetrics()));
  binder_.Bind(form_.cboMonthCalendar, *calendars);
  row->addWidget(calendars);
  row->addWidget(MakeButton(binder_, form_.cmdDisplayCalendar, area));
  row->addStretch();
  row->addWidget(MakeButton(binder_, form_.cmdHelp, area));
  row->addWidget(MakeButton(binder_, form_.cmdQuit, area));
  return area;
}

}  // namespace tarnwick
