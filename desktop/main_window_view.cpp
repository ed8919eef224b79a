#include "desktop/main_window_view.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "desktop/look.h"
#include "desktop/panel.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
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
    {"lblCommonEraDate(1)", 0, "Common Era date"},
    {"lblJulianCalendarDate(1)", 0, "Julian date"},
    {"lblArchetypesDate(1)", 0, "Archetypes Calendar date"},
    {"lblSarvikDolmerSLCDate(1)", 0, "Sarvik-Dolmer Solilunar Calendar date"},
    {"lblLTCLunarDate(1)", 0, "Lunar Liberalia Triday Calendar date"},
    {"lblKSGDate(1)", 0, "Kestrin-Sarvik Goddess Calendar date"},
    {"lblOstrelLWCDate(1)", 0, "Ostrel Lunar Week Calendar date"},
    {"lblChronologicalJulianDate(1)", 0, "Chronological Julian date"},
    {"lblAstronomicalJulianDate(1)", 0, "Astronomical Julian date"},
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
    {"cmdReset", 'R', ""},
    {"cmdQuit", 'Q', ""},
};

}  // namespace

MainWindowView::MainWindowView(frmMain& form, HandlerGate& gate)
    : form_(form), binder_(gate, kWordings) {
  const int space = Spacing(*this);
  auto* sections = new QVBoxLayout(this);
  sections->setContentsMargins(space, space, space, space);
  sections->setSpacing(space);
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

  auto* closing = new QHBoxLayout;
  closing->setSpacing(space);
  closing->addWidget(MakeHistoryPanel(), 1);
  closing->addWidget(MakeButtons(), 1, Qt::AlignBottom);
  sections->addLayout(closing);

  binder_.Bind(form_.Clock, clock_);
  resize(sizeHint());
  binder_.Bind(form_, *this);
}

QWidget* MainWindowView::MakeButtons() {
  QWidget* area = MakeArea(Spacing(*this), this);
  auto* row = static_cast<QHBoxLayout*>(area->layout());
  row->addWidget(MakeButton(form_.cmdReset, area));
  row->addStretch();
  row->addWidget(MakeButton(form_.cmdQuit, area));
  return area;
}

void MainWindowView::AddOption(OptionButton& option, QWidget* group) {
  auto* radio = new QRadioButton(group);
  group->layout()->addWidget(radio);
  binder_.Bind(option, *radio);
}

QPushButton* MainWindowView::MakeButton(Button& button, QWidget* parent) {
  auto* push = new QPushButton(parent);
  push->setAutoDefault(false);
  QFont font = push->font();
  font.setBold(true);
  push->setFont(font);
  binder_.Bind(button, *push);
  return push;
}

}  // namespace tarnwick
