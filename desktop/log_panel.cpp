// What goes into the log, and the ways to it.
#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/bound_widgets.h"
#include "desktop/look.h"
#include "desktop/main_window_view.h"
#include "desktop/panel.h"

namespace tarnwick {

QWidget* MainWindowView::MakeLogPanel() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  panel->SetTitle("Log");
  auto* row = new QHBoxLayout;
  row->setSpacing(Spacing(*panel));
  auto* all = new QCheckBox(panel);
  binder_.Bind(form_.chkLog, *all);
  row->addWidget(all);
  row->addStretch();
  for (Button* button : {&form_.cmdLogThisResult, &form_.cmdViewLog, &form_.cmdLogPreferences}) {
    row->addWidget(MakeButton(binder_, *button, panel));
  }
  panel->Content().addLayout(row);
  panel->Content().addStretch();
  return panel;
}

}  // namespace tarnwick
