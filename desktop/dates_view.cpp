#include "desktop/dates_view.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "calendars/calendar_table.h"
#include "desktop/link_label.h"
#include "desktop/look.h"

namespace tarnwick {
namespace {

constexpr char kLongestDate[] = "-5011-13-3-3 OLW (Daythree in Weekthree of De Quincy, -5011)";

}  // namespace

DatesView::DatesView(DatesSection& section, Binder& binder, QWidget* parent)
    : Panel(Ground::kDark, parent), section_(section), binder_(binder) {
  SetTitle("One moment, nine ways");
  auto* rows = new QGridLayout;
  rows->setHorizontalSpacing(3 * Spacing(*this) / 2);
  rows->setVerticalSpacing(0);  // the padding of the labels is enough
  rows->setColumnStretch(1, 1);
  // Room for any date, so that the window need not grow with the text.
  rows->setColumnMinimumWidth(1,
                              fontMetrics().horizontalAdvance(kLongestDate) + 2 * Spacing(*this));
  const Wording time[] = {{section.lblTime[1].Name(), 0, "Time"}};
  binder_.AddWordings(time);
  AddRow(section.lblTime, *rows);
  for (const Calendar calendar : kDisplayOrder) {
    ValueLabel& label = section.LabelOf(calendar);
    const Wording wording[] = {{label[1].Name(), 0, RowOf(calendar).spoken_name}};
    binder_.AddWordings(wording);
    AddRow(label, *rows);
  }
  Content().addLayout(rows);
  Content().addStretch();
}

void DatesView::AddRow(ValueLabel& label, QGridLayout& rows) {
  const int row = rows.rowCount();
  auto* caption = new LinkLabel(LinkLabel::Kind::kCaption, this);
  binder_.Bind(label[0], *caption);
  SetTextColor(*caption, Look::kCaption);
  rows.addWidget(caption, row, 0);

  auto* date = new LinkLabel(LinkLabel::Kind::kValue, this);
  date->setCheckable(&label != &section_.lblTime);
  binder_.Bind(label[1], *date);
  rows.addWidget(date, row, 1, Qt::AlignLeft);
}

}  // namespace tarnwick
