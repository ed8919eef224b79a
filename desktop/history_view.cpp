#include "desktop/history_view.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "desktop/bound_widgets.h"
#include "desktop/drop_list.h"
#include "desktop/look.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"cboHistory", 0, "History"},
    {"cmdBack", 0, "Back"},
    {"cmdForward", 0, "Forward"},
};

constexpr char kLongestEntry[] = "-5011-13-3-3 OLW 09:55 (Greenwich; local = GMT+05:30)";

}  // namespace

HistoryView::HistoryView(HistorySection& section, Binder& binder, QWidget* parent)
    : Panel(Ground::kDark, parent) {
  binder.AddWordings(kWordings);
  binder.Bind(section.fraHistory, *this);
  QHBoxLayout& row = MakeLine();
  row.addWidget(MakeButton(binder, section.cmdBack, this));
  row.addWidget(MakeButton(binder, section.cmdForward, this));
  auto* entries = new DropList(this);
  ReserveWidth(*entries, kLongestEntry);
  binder.Bind(section.cboHistory, *entries);
  row.addWidget(entries, 1);
}

}  // namespace tarnwick
