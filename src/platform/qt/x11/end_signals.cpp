#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

#include "platform/desktop_services.h"

namespace vellumark {
namespace {

// A signal reaches no object of the program: these two are all that its handler touches.
std::atomic<bool> has_signal = false;
std::atomic<int> wake_up = -1;

void OnSignal(int /*number*/) {
  const int error = errno;
  if (!has_signal.exchange(true) && wake_up >= 0) {
    [[maybe_unused]] const auto written = write(wake_up, "", 1);
  }
  errno = error;
}

}  // namespace

int CatchEndSignals() {
  std::array<int, 2> ends{-1, -1};
  if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return -1;
  wake_up = ends[1];
  for (const int number : {SIGTERM, SIGHUP, SIGINT}) {
    struct sigaction action = {};
    if (sigaction(number, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) continue;
    action = {};
    action.sa_handler = OnSignal;
    action.sa_flags = SA_RESTART;
    sigaction(number, &action, nullptr);
  }
  return ends[0];
}

bool HasEndSignal() { return has_signal; }

}  // namespace vellumark
