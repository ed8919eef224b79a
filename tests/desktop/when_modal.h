// What a test does to a dialog that waits for an answer.
#pragma once

#include <QApplication>
#include <QTimer>

namespace tarnwick {

// Does something to the next modal window once it is open.
template <class Window, class Action>
void WhenModal(const Action& action) {
  auto* poll = new QTimer(qApp);
  QObject::connect(poll, &QTimer::timeout, poll, [poll, action] {
    auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
    if (window == nullptr) return;
    poll->stop();
    poll->deleteLater();
    action(*window);
  });
  poll->start(5);
}

}  // namespace tarnwick
