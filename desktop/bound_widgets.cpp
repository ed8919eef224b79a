#include "desktop/bound_widgets.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

#include "desktop/look.h"
#include "desktop/panel.h"

namespace tarnwick {

QPushButton* MakeButton(Binder& binder, Button& button, QWidget* parent, ButtonRole role) {
  auto* push = new QPushButton(parent);
  if (role == ButtonRole::kAccent) push->setPalette(AccentPalette());
  push->setAutoDefault(false);
  QFont font = push->font();
  font.setBold(true);
  push->setFont(font);
  binder.Bind(button, *push);
  return push;
}

void AddOption(Binder& binder, OptionButton& option, Area& group) {
  auto* radio = new QRadioButton(&group);
  group.Row().addWidget(radio);
  binder.Bind(option, *radio);
}

}  // namespace tarnwick
