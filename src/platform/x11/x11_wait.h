// Waiting for what other programs, or the user, are about to do.
#ifndef VELLUMARK_PLATFORM_X11_X11_WAIT_H_
#define VELLUMARK_PLATFORM_X11_X11_WAIT_H_

#include <chrono>
#include <functional>

namespace vellumark {

// Looks every 20 ms whether it holds. False when it still does not after the longest wait.
bool WaitUntil(std::chrono::milliseconds longest, const std::function<bool()>& holds);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_X11_X11_WAIT_H_
