// Shows a function the events of an object before the object sees them; the function returns true
// to swallow one. It lives as long as the object.
#pragma once

#include <QEvent>
#include <QObject>
#include <functional>
#include <utility>

namespace tarnwick {

class EventHook : public QObject {
 public:
  using Function = std::function<bool(QEvent& event)>;

  EventHook(QObject& target, Function function) : QObject(&target), function_(std::move(function)) {
    target.installEventFilter(this);
  }
  bool eventFilter(QObject* /*target*/, QEvent* event) override { return function_(*event); }

 private:
  Function function_;
};

}  // namespace tarnwick
