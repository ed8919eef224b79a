// The moments of the latest results.
#include <QComboBox>
#include <QVBoxLayout>

#include "desktop/look.h"
#include "desktop/main_window_view.h"
#include "desktop/panel.h"

namespace tarnwick {
namespace {

constexpr char kLongestEntry[] = "-5011-13-3-3 OLW 09:55 (Greenwich; local = GMT+05:30)";

}  // namespace

QWidget* MainWindowView::MakeHistoryPanel() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  binder_.Bind(form_.fraHistory, *panel);
  auto* entries = new QComboBox(panel);
  ReserveWidth(*entries, kLongestEntry);
  binder_.Bind(form_.cboHistory, *entries);
  panel->Content().addWidget(entries);
  panel->Content().addStretch();
  return panel;
}

}  // namespace tarnwick
