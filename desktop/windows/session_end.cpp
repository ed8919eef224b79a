#include "desktop/session_end.h"

#include <QAbstractNativeEventFilter>
#include <QApplication>
#include <utility>
#include <windows.h>

namespace tarnwick {
namespace {

// Every window is told of the end; the first that is has the program save.
class EndOfSession final : public QAbstractNativeEventFilter {
 public:
  explicit EndOfSession(std::function<void()> save) : save_(std::move(save)) {}

  bool nativeEventFilter(const QByteArray& /*type*/, void* message, qintptr* /*result*/) override {
    const MSG& told = *static_cast<const MSG*>(message);
    if (told.message == WM_ENDSESSION && told.wParam != 0) std::exchange(save_, [] {})();
    return false;
  }

 private:
  std::function<void()> save_;
};

}  // namespace

void SaveAtSessionEnd(std::function<void()> save) {
  static EndOfSession filter(std::move(save));
  qApp->installNativeEventFilter(&filter);
}

}  // namespace tarnwick
