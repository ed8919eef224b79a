#include "desktop/context_menu.h"

#include <QAction>
#include <QWidget>

#include "desktop/characters.h"
#include "desktop/mirror.h"

namespace tarnwick {

void BindMenu(Label& label, QWidget& widget, HandlerGate& gate) {
  if (label.menu.empty()) return;
  for (const MenuItem& item : label.menu) {
    auto* action = new QAction(ToQt(item.caption), &widget);
    action->setShortcut(QKeySequence(ToQt(item.keys)));
    action->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(action, &QAction::triggered, &widget,
                     [run = item.on_click, &gate] { gate.Run(run); });
    widget.addAction(action);
  }
  widget.setContextMenuPolicy(Qt::ActionsContextMenu);
  Mirror(label, Property::kCaption, widget, [&label, &widget] {
    widget.setFocusPolicy(label.Caption().empty() ? Qt::NoFocus : Qt::TabFocus);
  });
}

}  // namespace tarnwick
