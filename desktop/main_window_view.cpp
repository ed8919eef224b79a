#include "desktop/main_window_view.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "desktop/bound_widgets.h"
#include "desktop/calendar_opener.h"
#include "desktop/check_mark.h"
#include "desktop/dates_view.h"
#include "desktop/entry_view.h"
#include "desktop/history_view.h"
#include "desktop/log_view.h"
#include "desktop/look.h"
#include "desktop/moon_view.h"
#include "desktop/move_view.h"
#include "desktop/panel.h"
#include "desktop/screen_fit.h"
#include "desktop/search_view.h"
#include "desktop/time_view.h"
#include "desktop/twips.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"cmdNow", 'N', ""},
    {"picCheck", 0, "The clock is running"},
    {"cmdReset", 'R', ""},
    {"cmdQuit", 'Q', ""},
};

constexpr QSize kUsualSize{80, 53};  // in lines of text

}  // namespace

MainWindowView::MainWindowView(frmMain& form, HandlerGate& gate)
    : form_(form), binder_(gate, kWordings) {
  QVBoxLayout* sections = MakeSections(*this);
  sections->addWidget(MakeEntry());
  sections->addLayout(MakeRow({{new DatesView(form_.dates, binder_, this), 3},
                               {new MoonView(form_.moon, binder_, this), 2}}),
                      1);
  sections->addLayout(MakeRow({{new MoveView(form_.move, binder_, this), 6},
                               {new SearchView(form_.search, binder_, this), 6},
                               {new EclipseView(form_.search, binder_, this), 7}}));
  sections->addLayout(MakeRow({{new HistoryView(form_.history, binder_, this), 2},
                               {new LogView(form_.log, binder_, this), 3}}));
  sections->addWidget(MakeButtons());

  binder_.Bind(form_.Clock, clock_);
  FitToScreen(*this);
  resize(kUsualSize * fontMetrics().height());
  binder_.Bind(form_, *this);
}

// Parts side by side, with their shares of the width.
QHBoxLayout* MainWindowView::MakeRow(const std::initializer_list<std::pair<QWidget*, int>>& parts) {
  auto* row = new QHBoxLayout;
  row->setSpacing(Spacing(*this));
  for (const auto& [part, share] : parts) row->addWidget(part, share);
  return row;
}

// The place of a label follows from the layout, which has been made by then.
void MainWindowView::ReportPlace() {
  Label& label = form_.dates.lblOstrelLWCDate[1];
  const QWidget& shown = *WidgetOf(label);
  label.SetBounds(ToTwips({shown.mapTo(this, QPoint()), shown.size()}));
}

void MainWindowView::showEvent(QShowEvent* /*event*/) { ReportPlace(); }

void MainWindowView::resizeEvent(QResizeEvent* /*event*/) { ReportPlace(); }

QWidget* MainWindowView::MakeEntry() {
  auto* entry = new EntryView(form_.entry, binder_, this);
  QHBoxLayout& row = entry->Commands();
  row.addWidget(MakeButton(binder_, form_.cmdNow, entry));
  auto* check = new CheckMark(entry);
  binder_.Bind(form_.picCheck, *check);
  row.addWidget(check);
  row.addSpacing(2 * Spacing(*this));
  row.addStretch();
  row.addWidget(new TimeView(form_.time, binder_, entry));
  return entry;
}

QWidget* MainWindowView::MakeButtons() {
  auto* area = new Area(Spacing(*this), this);
  QHBoxLayout& row = area->Row();
  row.addWidget(MakeButton(binder_, form_.cmdReset, area));
  row.addWidget(MakeButton(binder_, form_.cmdSaveState, area));
  row.addStretch();
  row.addWidget(new CalendarOpener(form_.calendar, binder_, area));
  row.addWidget(MakeButton(binder_, form_.sky.cmdSky, area));
  row.addWidget(MakeButton(binder_, form_.lists.cmdLists, area));
  row.addStretch();
  row.addWidget(MakeButton(binder_, form_.cmdHelp, area));
  row.addWidget(MakeButton(binder_, form_.cmdQuit, area));
  return area;
}

}  // namespace tarnwick
