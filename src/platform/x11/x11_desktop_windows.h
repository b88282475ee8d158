// Windows of an X server.
#ifndef VELLUMARK_PLATFORM_X11_X11_DESKTOP_WINDOWS_H_
#define VELLUMARK_PLATFORM_X11_X11_DESKTOP_WINDOWS_H_

#include <memory>

#include "platform/desktop_windows.h"

namespace vellumark {

class X11Connection;

// Connects at the first call, so that a program start does not wait for it, and again at a later
// one when the server could not be reached or has gone away.
class X11DesktopWindows final : public DesktopWindows {
 public:
  X11DesktopWindows();
  ~X11DesktopWindows() override;
  X11DesktopWindows(const X11DesktopWindows&) = delete;
  X11DesktopWindows& operator=(const X11DesktopWindows&) = delete;

  std::vector<TopLevelWindow> List() override;
  WindowHandle ActiveWindow() override;
  ProcessId ProcessOf(WindowHandle window) override;
  Activation Activate(WindowHandle window, ProcessId process) override;
  void PressEnter() override;

 private:
  // Null when no server can be reached.
  X11Connection* Connected();

  std::unique_ptr<X11Connection> connection_;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_X11_X11_DESKTOP_WINDOWS_H_
