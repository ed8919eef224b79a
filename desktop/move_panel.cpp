// Moves by a step, once or repeatedly.
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/bound_widgets.h"
#include "desktop/characters.h"
#include "desktop/look.h"
#include "desktop/main_window_view.h"
#include "desktop/panel.h"

namespace tarnwick {
namespace {

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

// The panel is not the frame itself: what steers a repeated move stands in the panel, and is used
// while the frame is disabled.
QWidget* MainWindowView::MakeMovePanel() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  panel->SetTitle(ToQt(form_.fraMove.Caption()));
  panel->Content().addWidget(MakeMoveFrame(panel));
  panel->Content().addLayout(MakePeriodRow(panel));
  panel->Content().addWidget(MakeSteering(panel), 0, Qt::AlignRight);
  panel->Content().addStretch();
  return panel;
}

QWidget* MainWindowView::MakeMoveFrame(QWidget* panel) {
  const int space = Spacing(*panel);
  auto* frame = new QWidget(panel);
  binder_.Bind(form_.fraMove, *frame);
  auto* rows = new QGridLayout(frame);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setHorizontalSpacing(2 * space);
  rows->setVerticalSpacing(space);
  rows->setColumnStretch(0, 1);

  rows->addWidget(MakeStepList(frame), 0, 0);
  auto* repeatedly = new QCheckBox(frame);
  binder_.Bind(form_.chkRepeatedly, *repeatedly);
  rows->addWidget(repeatedly, 0, 1);

  QWidget* direction = MakeArea(2 * space, frame);
  binder_.Bind(form_.fraMoveDirection, *direction);
  AddOption(binder_, form_.optMoveDirection[0], direction);
  AddOption(binder_, form_.optMoveDirection[1], direction);
  rows->addWidget(direction, 1, 0, Qt::AlignLeft);
  rows->addWidget(MakeButton(binder_, form_.cmdMove, frame), 1, 1);
  return frame;
}

QWidget* MainWindowView::MakeStepList(QWidget* frame) {
  QWidget* area = MakeArea(0, frame);
  binder_.Bind(form_.fraMoveStep, *area);
  auto* steps = new QComboBox(area);
  ReserveWidth(*steps, kLongestStep);
  steps->setMaxVisibleItems(kVisibleSteps);
  binder_.Bind(form_.cboMoveStep, *steps);
  area->layout()->addWidget(steps);
  return area;
}

QHBoxLayout* MainWindowView::MakePeriodRow(QWidget* panel) {
  auto* row = new QHBoxLayout;
  row->setSpacing(Spacing(*panel));
  auto* period = new QComboBox(panel);
  ReserveWidth(*period, kLongestPeriod);
  binder_.Bind(form_.cboRefreshPeriod, *period);
  row->addWidget(period);

  auto* unit = new QLabel(panel);
  unit->setBuddy(period);
  binder_.Bind(form_.lblRefreshPeriod, *unit);
  row->addWidget(unit);
  row->addStretch();
  return row;
}

QWidget* MainWindowView::MakeSteering(QWidget* panel) {
  QWidget* area = MakeArea(Spacing(*panel), panel);
  KeepRoomWhenHidden(*area);
  binder_.Bind(form_.fraStopPauseResume, *area);
  area->layout()->addWidget(MakeButton(binder_, form_.cmdStop, area));

  QPushButton* pause = MakeButton(binder_, form_.cmdPauseResume, area);
  pause->setMinimumWidth(WidthWith(*pause, "Resume"));
  area->layout()->addWidget(pause);
  return area;
}

}  // namespace tarnwick
