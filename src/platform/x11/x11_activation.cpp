#include "platform/x11/x11_activation.h"

#include <unistd.h>

#include <chrono>

#include "platform/x11/x11_connection.h"
#include "platform/x11/x11_lookup.h"
#include "platform/x11/x11_wait.h"

namespace vellumark {
namespace {

constexpr std::chrono::seconds kLongestWait(2);

bool IsOurTurn(X11Connection& x) {
  const WindowHandle active = FindActiveWindow(x);
  return active != 0 && FindProcess(x, active) == static_cast<ProcessId>(getpid());
}

// A user's own request with a time that is not in the past: what keeps programs from stealing the
// focus lets it through.
void AskWindowManager(X11Connection& x, WindowHandle window) {
  xcb_ewmh_request_change_active_window(x.Ewmh(), x.ScreenNumber(), window,
                                        XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER, x.ServerTime(),
                                        FindActiveWindow(x));
}

void Raise(X11Connection& x, WindowHandle window) {
  const std::uint32_t above = XCB_STACK_MODE_ABOVE;
  xcb_map_window(x.Xcb(), window);
  xcb_configure_window(x.Xcb(), window, XCB_CONFIG_WINDOW_STACK_MODE, &above);
}

void Focus(X11Connection& x, WindowHandle window) {
  xcb_set_input_focus(x.Xcb(), XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
}

}  // namespace

Activation ActivateWindow(X11Connection& x, WindowHandle window, ProcessId process) {
  const bool our_turn = WaitUntil(kLongestWait, [&x] { return !x.IsAlive() || IsOurTurn(x); });
  if (!our_turn) return Activation::kNotOurTurn;
  if (!Exists(x, window) || FindProcess(x, window) != process) return Activation::kFailed;

  const bool managed = IsManaged(x);
  if (managed) {
    AskWindowManager(x, window);
  } else {
    Raise(x, window);
  }
  bool active = false;
  WaitUntil(kLongestWait, [&] {
    // The focus is refused to a window that is not visible yet.
    if (!managed) Focus(x, window);
    active = FindActiveWindow(x) == window;
    return active || !Exists(x, window);
  });
  return active ? Activation::kActivated : Activation::kFailed;
}

}  // namespace vellumark
