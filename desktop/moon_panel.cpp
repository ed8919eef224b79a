// The Moon at the moment.
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/look.h"
#include "desktop/main_window_view.h"
#include "desktop/panel.h"
#include "desktop/picture_view.h"

namespace tarnwick {
namespace {

// As high as the dates beside it, with the texts.
constexpr int kPictureLines = 9;
constexpr char kLongestAge[] = "[-64316] 29 days, 23 hrs, 59 mins (100.0%)";

}  // namespace

QWidget* MainWindowView::MakeMoonPanel() {
  auto* panel = new Panel(Panel::Ground::kLight, this);
  panel->SetTitle("Moon");
  auto* picture = new PictureView(kPictureLines, panel);
  binder_.Bind(form_.picMoon, *picture);
  panel->Content().addWidget(picture, 1);

  auto* rows = new QGridLayout;
  rows->setHorizontalSpacing(2 * Spacing(*panel));
  rows->setVerticalSpacing(Spacing(*panel) / 2);
  rows->setColumnStretch(1, 1);
  rows->setColumnMinimumWidth(
      1, panel->fontMetrics().horizontalAdvance(kLongestAge) + Spacing(*panel));
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
