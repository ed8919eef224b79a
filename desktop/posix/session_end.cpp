#include "desktop/session_end.h"

#include <QApplication>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace tarnwick {
namespace {

// A handler of signals may do next to nothing. It writes the signal's number into a pipe, whose
// other end the event loop reads.
int pipe_in = -1;

void Tell(int signal) {
  const int error_of_others = errno;
  const auto number = static_cast<unsigned char>(signal);
  [[maybe_unused]] const auto written = write(pipe_in, &number, 1);
  errno = error_of_others;
}

// What whoever started the program has it ignore, as nohup does, stays ignored.
void Watch(int signal) {
  struct sigaction action {};
  if (sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) return;
  action.sa_handler = Tell;
  action.sa_flags = SA_RESTART;
  sigaction(signal, &action, nullptr);
}

}  // namespace

void SaveAtSessionEnd(std::function<void()> save) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) return;
  for (const int end : ends) fcntl(end, F_SETFD, FD_CLOEXEC);
  pipe_in = ends[1];
  auto* const notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, qApp);
  const auto end_by_signal = [out = ends[0], save = std::move(save)] {
    unsigned char number = 0;
    if (read(out, &number, 1) != 1) return;
    save();
    std::signal(number, SIG_DFL);
    std::raise(number);
  };
  QObject::connect(notifier, &QSocketNotifier::activated, qApp, end_by_signal);
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) Watch(signal);
}

}  // namespace tarnwick
