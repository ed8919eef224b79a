// Searches for a phase, an eclipse or a coincidence.
#include <QComboBox>
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

constexpr char kLongestTarget[] = "Coincidence of 1sts of month";
constexpr int kVisibleTargets = 16;

}  // namespace

// The panel is not the frame itself: a search disables the frame, and says that it is running.
QWidget* MainWindowView::MakeSearchPanel() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  panel->SetTitle(ToQt(form_.fraSearch.Caption()));
  panel->Content().addWidget(MakeSearchFrame(panel));

  auto* searching = new QLabel(panel);
  KeepRoomWhenHidden(*searching);
  binder_.Bind(form_.lblSearching, *searching);
  panel->Content().addWidget(searching, 0, Qt::AlignRight);
  panel->Content().addStretch();
  return panel;
}

QWidget* MainWindowView::MakeSearchFrame(QWidget* panel) {
  const int space = Spacing(*panel);
  auto* frame = new QWidget(panel);
  binder_.Bind(form_.fraSearch, *frame);
  auto* rows = new QVBoxLayout(frame);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(space);

  auto* targets = new QComboBox(frame);
  ReserveWidth(*targets, kLongestTarget);
  targets->setMaxVisibleItems(kVisibleTargets);
  binder_.Bind(form_.cboTarget, *targets);
  rows->addWidget(targets);

  auto* command = new QHBoxLayout;
  command->setSpacing(space);
  QWidget* direction = MakeArea(2 * space, frame);
  AddOption(binder_, form_.optNext, direction);
  AddOption(binder_, form_.optPrevious, direction);
  command->addWidget(direction);
  command->addStretch();
  command->addWidget(MakeButton(binder_, form_.cmdSearch, frame));
  rows->addLayout(command);
  return frame;
}

}  // namespace tarnwick
