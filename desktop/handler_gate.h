// The one way by which what the user does reaches the forms. No exception may travel through Qt's
// event loop, so it is caught here; and once the gate is shut no handler runs any more.
#pragma once

#include <exception>
#include <functional>
#include <string>
#include <utility>

#include "controls/control.h"
#include "desktop/vector_registers.h"

namespace tarnwick {

class HandlerGate {
 public:
  // Told of an exception that no handler should have let out; the gate is shut by then.
  using FaultReport = std::function<void(const std::string& what)>;

  explicit HandlerGate(FaultReport report) : report_(std::move(report)) {}

  bool IsOpen() const { return open_; }
  void Shut() { open_ = false; }

  template <class Action>
  void Run(const Action& action) {
    if (!open_) return;
    ClearVectorRegisters();
    try {
      action();
    } catch (const std::exception& fault) {
      Fail(fault.what());
    } catch (...) {
      Fail("unknown fault");
    }
  }

  // What the user does with a control. A press may come when it cannot be used any more, as that of
  // a button which a key has pressed a moment before: that is refused. Returns whether it was
  // taken.
  template <class Action>
  bool RunFor(const Control& control, const Action& action) {
    if (!control.IsUsable()) return false;
    Run(action);
    return true;
  }

 private:
  void Fail(const std::string& what) {
    Shut();
    report_(what);
  }

  FaultReport report_;
  bool open_ = true;
};

}  // namespace tarnwick
