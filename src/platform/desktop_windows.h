// Other programs' windows: finding one by its title, bringing it to the front, sending it a key.
#ifndef VELLUMARK_PLATFORM_DESKTOP_WINDOWS_H_
#define VELLUMARK_PLATFORM_DESKTOP_WINDOWS_H_

#include <cstdint>
#include <string>
#include <vector>

namespace vellumark {

using WindowHandle = std::uint32_t;  // 0 for none
using ProcessId = std::uint32_t;     // 0 when it is not known

struct TopLevelWindow {
  WindowHandle handle = 0;
  std::string title;  // UTF-8 from DesktopWindows
};

enum class Activation {
  kActivated,
  kNotOurTurn,  // this program did not get the input focus; nothing was done
  kFailed,      // the window or its process is gone, or the desktop refuses
};

// Where the system offers none of this, List answers with nothing, and no window is ever active.
class DesktopWindows {
 public:
  virtual ~DesktopWindows() = default;

  // All top-level windows, in the order in which the window system reports them.
  virtual std::vector<TopLevelWindow> List() = 0;

  // The window that has the input focus; 0 when there is none or it cannot be told.
  virtual WindowHandle ActiveWindow() = 0;

  // The process that owns a window.
  virtual ProcessId ProcessOf(WindowHandle window) = 0;

  // Waits, for 2 seconds at most, until a window of this program has the input focus, then brings
  // the window of that process to the front, restoring it when it is minimized. kActivated only
  // when the window is the active one on return.
  virtual Activation Activate(WindowHandle window, ProcessId process) = 0;

  // Sends the Enter key to the active window, down as long as a finger keeps it, without waiting
  // until it is processed. A key of the user's that is still down and would spoil it is waited for,
  // a second at most.
  virtual void PressEnter() = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_DESKTOP_WINDOWS_H_
