// The moment in every calendar: a fixed column of captions, and the dates beside it.
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/link_label.h"
#include "desktop/look.h"
#include "desktop/main_window_view.h"
#include "desktop/panel.h"

namespace tarnwick {
namespace {

constexpr char kLongestDate[] = "-5011-13-3-3 OLW (Daythree in Weekthree of De Quincy, -5011)";

}  // namespace

QWidget* MainWindowView::MakeDatesPanel() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  panel->SetTitle("One moment, nine ways");
  auto* rows = new QGridLayout;
  rows->setHorizontalSpacing(3 * Spacing(*panel) / 2);
  rows->setVerticalSpacing(0);  // the padding of the labels is enough
  rows->setColumnStretch(1, 1);
  // Room for any date, so that the window need not grow with the text.
  rows->setColumnMinimumWidth(
      1, panel->fontMetrics().horizontalAdvance(kLongestDate) + 2 * Spacing(*panel));
  // In the order of the display: the day counts last.
  for (frmMain::DateLabel* label :
       {&form_.lblTime, &form_.lblCommonEraDate, &form_.lblJulianCalendarDate,
        &form_.lblArchetypesDate, &form_.lblSarvikDolmerSLCDate, &form_.lblLTCLunarDate,
        &form_.lblKSGDate, &form_.lblOstrelLWCDate, &form_.lblChronologicalJulianDate,
        &form_.lblAstronomicalJulianDate}) {
    AddDate(*label, *rows, panel);
  }
  panel->Content().addLayout(rows);
  panel->Content().addStretch();
  return panel;
}

void MainWindowView::AddDate(frmMain::DateLabel& label, QGridLayout& rows, QWidget* panel) {
  const int row = rows.rowCount();
  auto* caption = new LinkLabel(LinkLabel::Kind::kCaption, panel);
  binder_.Bind(label[0], *caption);
  SetTextColor(*caption, Look::kCaption);
  rows.addWidget(caption, row, 0);

  auto* date = new LinkLabel(LinkLabel::Kind::kValue, panel);
  binder_.Bind(label[1], *date);
  rows.addWidget(date, row, 1, Qt::AlignLeft);
}

}  // namespace tarnwick
