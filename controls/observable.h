// How what is shown follows what is: views watch controls and forms, which know no view.
#pragma once

#include <functional>
#include <utility>
#include <vector>

namespace tarnwick {

// What of a control or form has changed.
enum class Property {
  kBounds,
  kCells,
  kCaption,
  kColumns,
  kDescription,
  kDrawing,
  kEnabled,
  kFocus,  // the control has been given the focus, or the form has become the active one
  kForeColor,
  kInterval,
  kItems,
  kListIndex,
  kMinimised,
  kOrder,
  kPicture,
  kRows,
  kSelected,
  kSelectedRow,
  kSelection,
  kText,
  kToolTipText,
  kValue,
  kVisible,
};

// Something that views can watch. It knows nothing of them but that they want to be told.
class Observable {
 public:
  using Watcher = std::function<void(Property)>;

  Observable() = default;
  Observable(const Observable&) = delete;
  Observable& operator=(const Observable&) = delete;
  virtual ~Observable() = default;

  // Calls `watcher` after every change, for as long as this object lives.
  void Watch(Watcher watcher) { watchers_.push_back(std::move(watcher)); }

 protected:
  void Notify(Property property) const {
    for (const Watcher& watcher : watchers_) watcher(property);
  }

  // Gives `field` its new value and tells the watchers if that is a change.
  template <class T>
  void Assign(T& field, T value, Property property) {
    if (field == value) return;
    field = std::move(value);
    Notify(property);
  }

 private:
  std::vector<Watcher> watchers_;
};

}  // namespace tarnwick
