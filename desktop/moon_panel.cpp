// The Moon at the moment.
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/look.h"
#include "desktop/main_window_view.h"
#include "desktop/panel.h"

namespace tarnwick {
namespace {

constexpr char kLongestAge[] = "[-64316] 29 days, 23 hrs, 59 mins (100.0%)";

}  // namespace

QWidget* MainWindowView::MakeMoonPanel() {
  auto* panel = new Panel(Panel::Ground::kLight, this);
  panel->SetTitle("Moon");
  auto* rows = new QGridLayout;
  rows->setHorizontalSpacing(2 * Spacing(*panel));
  // The padding of the dates beside them, so that the rows stand on one line.
  const int padding = panel->fontMetrics().height() / 6;
  rows->setContentsMargins(0, padding, 0, padding);
  rows->setVerticalSpacing(2 * padding);
  rows->setColumnStretch(1, 1);
  rows->setColumnMinimumWidth(1, panel->fontMetrics().horizontalAdvance(kLongestAge));
  AddMoonRow(form_.lblPhaseOfMoon, *rows, panel);
  AddMoonRow(form_.lblAgeOfMoon, *rows, panel);
  AddMoonRow(form_.lblDeltaT, *rows, panel);
  panel->Content().addLayout(rows);
  panel->Content().addStretch();
  return panel;
}

void MainWindowView::AddMoonRow(frmMain::DateLabel& label, QGridLayout& rows, QWidget* panel) {
  const int row = rows.rowCount();
  auto* caption = new QLabel(panel);
  binder_.Bind(label[0], *caption);
  SetTextColor(*caption, Look::kLightCaption);
  rows.addWidget(caption, row, 0);

  auto* value = new QLabel(panel);
  binder_.Bind(label[1], *value);
  rows.addWidget(value, row, 1);
}

}  // namespace tarnwick
