// Bringing a window of an X server to the front.
#ifndef VELLUMARK_PLATFORM_X11_X11_ACTIVATION_H_
#define VELLUMARK_PLATFORM_X11_X11_ACTIVATION_H_

#include "platform/desktop_windows.h"

namespace vellumark {

class X11Connection;

// The contract of DesktopWindows::Activate. Takes 4 seconds at most: 2 until it is this program's
// turn, 2 until the window is the active one.
Activation ActivateWindow(X11Connection& x, WindowHandle window, ProcessId process);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_X11_X11_ACTIVATION_H_
