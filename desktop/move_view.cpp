#include "desktop/move_view.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/bound_widgets.h"
#include "desktop/characters.h"
#include "desktop/drop_list.h"
#include "desktop/look.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
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
};

constexpr char kLongestStep[] = "1 CE century";
constexpr char kLongestPeriod[] = "0.5";
constexpr int kVisibleSteps = 20;

// The width that a button asks for when it shows another text than it does.
int WidthWith(QPushButton& button, const QString& text) {
  const QString shown = button.text();
  button.ensurePolished();
  button.setText(text);
  const int width = button.sizeHint().width();
  button.setText(shown);
  return width;
}

}  // namespace

MoveView::MoveView(MoveSection& section, Binder& binder, QWidget* parent)
    : Panel(Ground::kDark, parent), section_(section), binder_(binder) {
  binder_.AddWordings(kWordings);
  SetTitle(ToQt(section_.fraMove.Caption()));
  Content().addWidget(MakeFrame());
  QHBoxLayout* steering = MakePeriodRow();
  steering->addWidget(MakeSteering());
  Content().addLayout(steering);
  Content().addStretch();
}

QWidget* MoveView::MakeFrame() {
  const int space = Spacing(*this);
  auto* frame = new QWidget(this);
  binder_.Bind(section_.fraMove, *frame);
  auto* rows = new QGridLayout(frame);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setHorizontalSpacing(2 * space);
  rows->setVerticalSpacing(space);
  rows->setColumnStretch(0, 1);

  rows->addWidget(MakeStepList(frame), 0, 0);
  auto* repeatedly = new QCheckBox(frame);
  binder_.Bind(section_.chkRepeatedly, *repeatedly);
  rows->addWidget(repeatedly, 0, 1);

  auto* direction = new Area(2 * space, frame);
  binder_.Bind(section_.fraMoveDirection, *direction);
  AddOption(binder_, section_.optMoveDirection[0], *direction);
  AddOption(binder_, section_.optMoveDirection[1], *direction);
  rows->addWidget(direction, 1, 0, Qt::AlignLeft);
  rows->addWidget(MakeButton(binder_, section_.cmdMove, frame, ButtonRole::kAccent), 1, 1);
  return frame;
}

QWidget* MoveView::MakeStepList(QWidget* frame) {
  auto* area = new Area(0, frame);
  binder_.Bind(section_.fraMoveStep, *area);
  auto* steps = new DropList(area);
  ReserveWidth(*steps, kLongestStep);
  steps->setMaxVisibleItems(kVisibleSteps);
  binder_.Bind(section_.cboMoveStep, *steps);
  area->Row().addWidget(steps);
  return area;
}

QHBoxLayout* MoveView::MakePeriodRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(Spacing(*this));
  auto* period = new DropList(this);
  ReserveWidth(*period, kLongestPeriod);
  binder_.Bind(section_.cboRefreshPeriod, *period);
  row->addWidget(period);

  auto* unit = new QLabel(this);
  unit->setBuddy(period);
  binder_.Bind(section_.lblRefreshPeriod, *unit);
  row->addWidget(unit);
  row->addStretch();
  return row;
}

QWidget* MoveView::MakeSteering() {
  auto* area = new Area(Spacing(*this), this);
  KeepRoomWhenHidden(*area);
  binder_.Bind(section_.fraStopPauseResume, *area);
  area->Row().addWidget(MakeButton(binder_, section_.cmdStop, area));

  QPushButton* pause = MakeButton(binder_, section_.cmdPauseResume, area);
  pause->setMinimumWidth(WidthWith(*pause, "Resume"));
  area->Row().addWidget(pause);
  return area;
}

}  // namespace tarnwick
