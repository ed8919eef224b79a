#include "desktop/log_preferences_view.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/bound_widgets.h"
#include "desktop/characters.h"
#include "desktop/look.h"
#include "desktop/panel.h"
#include "desktop/screen_fit.h"

namespace tarnwick {
namespace {

constexpr Wording kWordings[] = {
    {"chkIncludeCE", 'C', ""},
    {"chkIncludeJC", 'J', ""},
    {"chkIncludeARC", 'A', ""},
    {"chkIncludeSD", 'S', ""},
    {"chkIncludeLLT", 'L', ""},
    {"chkIncludeKSG", 'K', ""},
    {"chkIncludeOLWC", 'W', ""},
    {"chkIncludeCJD", 'D', ""},
    {"chkIncludeAJD", 'u', ""},
    {"chkIncludePhaseOfMoonAndIllumination", 'P', ""},
    {"chkIncludeLunationAndAgeOfMoon", 'g', ""},
    {"optLogFormat(0)", '=', ""},
    {"optLogFormat(1)", ',', ""},
    {"cmdSetALL", 'e', ""},
    {"cmdClearAll", 'r', ""},
    {"cmdClose", 'o', ""},
};

}  // namespace

LogPreferencesView::LogPreferencesView(frmLogPreferences& form, HandlerGate& gate)
    : form_(form), binder_(gate, kWordings) {
  QVBoxLayout* sections = MakeSections(*this);
  sections->addWidget(MakeIncludePanel(), 1);
  sections->addWidget(MakeFormatPanel());
  sections->addWidget(MakeButtons());
  FitToScreen(*this);
  resize(sizeHint());
  binder_.Bind(form_, *this);
}

QWidget* LogPreferencesView::MakeIncludePanel() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  panel->setAccessibleName(ToQt(form_.lblInclude.Caption()));
  binder_.Bind(form_.lblInclude, panel->Title());
  for (Control* control : form_.Controls()) {
    auto* box = dynamic_cast<CheckBox*>(control);
    if (box == nullptr) continue;
    auto* check = new QCheckBox(panel);
    binder_.Bind(*box, *check);
    panel->Content().addWidget(check);
  }
  panel->Content().addStretch();
  return panel;
}

QWidget* LogPreferencesView::MakeFormatPanel() {
  auto* panel = new Panel(Panel::Ground::kDark, this);
  panel->setAccessibleName(ToQt(form_.lblFormat.Caption()));
  binder_.Bind(form_.lblFormat, panel->Title());
  auto* layouts = new Area(3 * Spacing(*this), panel);
  AddOption(binder_, form_.optLogFormat[0], *layouts);
  AddOption(binder_, form_.optLogFormat[1], *layouts);
  panel->Content().addWidget(layouts, 0, Qt::AlignLeft);
  return panel;
}

QWidget* LogPreferencesView::MakeButtons() {
  auto* area = new Area(Spacing(*this), this);
  QHBoxLayout& row = area->Row();
  row.addWidget(MakeButton(binder_, form_.cmdSetALL, area));
  row.addWidget(MakeButton(binder_, form_.cmdClearAll, area));
  row.addStretch();
  row.addWidget(MakeButton(binder_, form_.cmdClose, area));
  return area;
}

}  // namespace tarnwick
