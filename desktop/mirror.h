// How a widget keeps up with its control.
#pragma once

#include <QPointer>

#include "controls/observable.h"

namespace tarnwick {

// Runs `show` now and after every change of one property, for as long as the widget lives.
template <class Show>
void Mirror(Observable& source, Property property, QObject& widget, Show show) {
  show();
  source.Watch([guard = QPointer<QObject>(&widget), property, show](Property changed) {
    if (changed == property && guard) show();
  });
}

}  // namespace tarnwick
