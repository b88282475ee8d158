#include "platform/x11/x11_desktop_windows.h"

#include "platform/x11/x11_activation.h"
#include "platform/x11/x11_connection.h"
#include "platform/x11/x11_keyboard.h"
#include "platform/x11/x11_lookup.h"

namespace vellumark {

X11DesktopWindows::X11DesktopWindows() = default;
X11DesktopWindows::~X11DesktopWindows() = default;

X11Connection* X11DesktopWindows::Connected() {
  if (connection_ == nullptr || !connection_->IsAlive()) connection_ = X11Connection::Open();
  return connection_.get();
}

std::vector<TopLevelWindow> X11DesktopWindows::List() {
  X11Connection* x = Connected();
  return x == nullptr ? std::vector<TopLevelWindow>() : ListWindows(*x);
}

WindowHandle X11DesktopWindows::ActiveWindow() {
  X11Connection* x = Connected();
  return x == nullptr ? 0 : FindActiveWindow(*x);
}

ProcessId X11DesktopWindows::ProcessOf(WindowHandle window) {
  X11Connection* x = Connected();
  return x == nullptr ? 0 : FindProcess(*x, window);
}

Activation X11DesktopWindows::Activate(WindowHandle window, ProcessId process) {
  X11Connection* x = Connected();
  return x == nullptr ? Activation::kFailed : ActivateWindow(*x, window, process);
}

void X11DesktopWindows::PressEnter() {
  if (X11Connection* x = Connected()) PressEnterKey(*x);
}

}  // namespace vellumark
