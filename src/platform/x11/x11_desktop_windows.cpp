#include "platform/x11/x11_desktop_windows.h"

namespace vellumark {

std::vector<TopLevelWindow> X11DesktopWindows::List() { return {}; }

WindowHandle X11DesktopWindows::ActiveWindow() { return 0; }

ProcessId X11DesktopWindows::ProcessOf(WindowHandle /*window*/) { return 0; }

Activation X11DesktopWindows::Activate(WindowHandle /*window*/, ProcessId /*process*/) {
  return Activation::kFailed;
}

void X11DesktopWindows::PressEnter() {}

}  // namespace vellumark
