// The windows of a Windows desktop.
#ifndef VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_DESKTOP_WINDOWS_H_
#define VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_DESKTOP_WINDOWS_H_

#include "platform/desktop_windows.h"

namespace vellumark {

class WindowsDesktopWindows final : public DesktopWindows {
 public:
  std::vector<TopLevelWindow> List() override;
  WindowHandle ActiveWindow() override;
  ProcessId ProcessOf(WindowHandle window) override;
  Activation Activate(WindowHandle window, ProcessId process) override;
  void PressEnter() override;
};

// Brings a window to the front even while another program, which the user works in, is there.
void ForceToForeground(WindowHandle window);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_DESKTOP_WINDOWS_H_
