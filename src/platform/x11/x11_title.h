// The title of a window of an X server.
#ifndef VELLUMARK_PLATFORM_X11_X11_TITLE_H_
#define VELLUMARK_PLATFORM_X11_X11_TITLE_H_

#include <string>

#include "platform/desktop_windows.h"

namespace vellumark {

class X11Connection;

// In UTF-8; empty when the window has no title or is gone.
std::string ReadTitle(X11Connection& x, WindowHandle window);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_X11_X11_TITLE_H_
