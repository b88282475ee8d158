#include "platform/x11/x11_wait.h"

#include <thread>

namespace vellumark {

bool WaitUntil(std::chrono::milliseconds longest, const std::function<bool()>& holds) {
  constexpr std::chrono::milliseconds kPause(20);
  const auto deadline = std::chrono::steady_clock::now() + longest;
  while (!holds()) {
    if (std::chrono::steady_clock::now() >= deadline) return false;
    std::this_thread::sleep_for(kPause);
  }
  return true;
}

}  // namespace vellumark
