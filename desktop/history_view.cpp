#include "desktop/history_view.h"

#include <QComboBox>
#include <QVBoxLayout>

#include "desktop/look.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {{"cboHistory", 0, "History"}};

constexpr char kLongestEntry[] = "-5011-13-3-3 OLW 09:55 (Greenwich; local = GMT+05:30)";

}  // namespace

HistoryView::HistoryView(HistorySection& section, Binder& binder, QWidget* parent)
    : Panel(Ground::kDark, parent) {
  binder.AddWordings(kWordings);
  binder.Bind(section.fraHistory, *this);
  auto* entries = new QComboBox(this);
  ReserveWidth(*entries, kLongestEntry);
  binder.Bind(section.cboHistory, *entries);
  Content().addWidget(entries);
  Content().addStretch();
}

}  // namespace tarnwick
