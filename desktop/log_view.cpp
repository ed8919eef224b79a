#include "desktop/log_view.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>

#include "desktop/bound_widgets.h"
#include "desktop/look.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"chkLog", 'a', ""},
    {"cmdLogThisResult", 'h', ""},
    {"cmdViewLog", 'w', ""},
};

}  // namespace

LogView::LogView(LogSection& section, Binder& binder, QWidget* parent)
    : Panel(Ground::kDark, parent) {
  binder.AddWordings(kWordings);
  SetTitle("Log");
  QHBoxLayout& row = MakeLine();
  auto* all = new QCheckBox(this);
  binder.Bind(section.chkLog, *all);
  row.addWidget(all);
  row.addStretch();
  for (Button* button :
       {&section.cmdLogThisResult, &section.cmdViewLog, &section.cmdLogPreferences}) {
    row.addWidget(MakeButton(binder, *button, this));
  }
}

}  // namespace tarnwick
