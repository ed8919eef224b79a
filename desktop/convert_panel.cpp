// The entry of a moment and the time system in which it is read.
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/bound_widgets.h"
#include "desktop/check_mark.h"
#include "desktop/look.h"
#include "desktop/main_window_view.h"
#include "desktop/panel.h"

namespace tarnwick {
namespace {

constexpr int kVisibleZones = 17;
constexpr char kLongestDayCount[] = "+9,999,999";

QLineEdit* MakeLineEdit(QWidget* panel) {
  auto* edit = new QLineEdit(panel);
  const int margin = Spacing(*panel) / 2;
  edit->setTextMargins(margin, margin / 4, margin, margin / 4);
  return edit;
}

// The width of a line edit that shows all of a text.
int EditWidth(const QLineEdit& edit, const QString& text) {
  return edit.fontMetrics().horizontalAdvance(text) + 2 * edit.fontMetrics().height();
}

}  // namespace

QWidget* MainWindowView::MakeConvertPanel() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  binder_.Bind(form_.fraConvert, *panel);
  panel->Content().addLayout(MakeEntryRow(panel));
  panel->Content().addLayout(MakeCommandRow(panel));
  return panel;
}

QHBoxLayout* MainWindowView::MakeEntryRow(QWidget* panel) {
  const int space = Spacing(*panel);
  auto* row = new QHBoxLayout;
  row->setSpacing(space);

  QLineEdit* date = MakeLineEdit(panel);
  date->setPlaceholderText("date, e.g. 2003-12-31 CE 15:55");
  date->setMinimumWidth(EditWidth(*date, date->placeholderText()));
  binder_.Bind(form_.txbDate, *date);
  row->addWidget(date, 1);
  row->addSpacing(space);

  QWidget* direction = MakeArea(2 * space, panel);
  AddOption(binder_, form_.optPlus, direction);
  AddOption(binder_, form_.optMinus, direction);
  row->addWidget(direction);

  QLineEdit* days = MakeLineEdit(panel);
  days->setAlignment(Qt::AlignRight);
  days->setFixedWidth(EditWidth(*days, kLongestDayCount));
  binder_.Bind(form_.txbPlusMinus, *days);
  row->addWidget(days);

  auto* unit = new QLabel(panel);
  unit->setBuddy(days);
  binder_.Bind(form_.lblDays, *unit);
  row->addWidget(unit);
  return row;
}

QHBoxLayout* MainWindowView::MakeCommandRow(QWidget* panel) {
  const int space = Spacing(*panel);
  auto* row = new QHBoxLayout;
  row->setSpacing(space);
  row->addWidget(MakeButton(binder_, form_.cmdCompute, panel));
  row->addWidget(MakeButton(binder_, form_.cmdClearDate, panel));
  row->addWidget(MakeButton(binder_, form_.cmdNow, panel));
  auto* check = new CheckMark(panel);
  binder_.Bind(form_.picCheck, *check);
  row->addWidget(check);
  row->addSpacing(2 * space);
  row->addStretch();

  auto* caption = new QLabel(panel);
  binder_.Bind(form_.lblTimeSystem, *caption);
  SetTextColor(*caption, Look::kCaption);
  row->addWidget(caption);
  QWidget* system = MakeArea(2 * space, panel);
  AddOption(binder_, form_.optGreenwich, system);
  AddOption(binder_, form_.optLocal, system);
  row->addWidget(system);
  row->addSpacing(2 * space);
  AddTimeZone(*row, panel);
  return row;
}

void MainWindowView::AddTimeZone(QHBoxLayout& row, QWidget* panel) {
  auto* zone = new QComboBox(panel);
  auto* caption = new QLabel(panel);
  caption->setBuddy(zone);
  binder_.Bind(form_.lblTimeZone, *caption);
  SetTextColor(*caption, Look::kCaption);
  row.addWidget(caption);

  zone->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  zone->setMaxVisibleItems(kVisibleZones);
  binder_.Bind(form_.cboTimeZone, *zone);
  row.addWidget(zone);
}

}  // namespace tarnwick
