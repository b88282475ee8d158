// Looking at the windows of an X server.
#ifndef VELLUMARK_PLATFORM_X11_X11_LOOKUP_H_
#define VELLUMARK_PLATFORM_X11_X11_LOOKUP_H_

#include <vector>

#include "platform/desktop_windows.h"

namespace vellumark {

class X11Connection;

// True when a window manager runs that keeps the desktop's lists and takes its requests.
bool IsManaged(X11Connection& x);

// The windows that the window manager keeps, in its order. Without one, every window below the root
// that has a title, frames without a title being looked into.
std::vector<TopLevelWindow> ListWindows(X11Connection& x);

// The window that the window manager calls active. Without one, the window of ListWindows that has
// the input focus or holds the one that has it; the outermost one when none of them has a title.
WindowHandle FindActiveWindow(X11Connection& x);

// As the window itself states it, or the leader of its group; 0 when neither does.
ProcessId FindProcess(X11Connection& x, WindowHandle window);

bool Exists(X11Connection& x, WindowHandle window);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_X11_X11_LOOKUP_H_
