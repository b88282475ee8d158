// Windows on the display, made beside Qt's own.
#ifndef VELLUMARK_TESTS_DESKTOP_TEST_WINDOW_H_
#define VELLUMARK_TESTS_DESKTOP_TEST_WINDOW_H_

#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

#include <functional>
#include <string>

#include "platform/desktop_windows.h"

namespace vellumark::testing {

// True as soon as it holds; false when it does not within ten seconds.
bool Becomes(const std::function<bool()>& holds);

struct WindowTraits {
  std::string utf8_title{};    // as programs of today state it
  std::string latin1_title{};  // as old ones do
  ProcessId process = 0;       // not stated when 0
  bool takes_focus = true;
};

// A shown window on a connection of its own; active unless it is part of another or takes no focus.
class TestWindow {
 public:
  explicit TestWindow(const WindowTraits& traits, WindowHandle parent = 0);
  ~TestWindow();
  TestWindow(const TestWindow&) = delete;
  TestWindow& operator=(const TestWindow&) = delete;

  WindowHandle Handle() const { return window_; }

  // Gives it the input focus, by the window manager where one runs, and waits until it is active.
  void TakeFocus() { TakeFocusFor(window_); }
  // The same for a part of another window, until that one is active.
  void TakeFocusFor(WindowHandle active);

  // The Enter keys that have come so far: `down` and `up` for each press and release without a
  // modifier, `other` for any other key event.
  std::string EnterKeys();
  // True while any key is down, whichever window has the focus.
  bool IsAnyKeyDown();

 private:
  bool IsManaged();
  bool IsVisible();
  void State(const WindowTraits& traits);

  xcb_ewmh_connection_t ewmh_ = {};
  xcb_connection_t* connection_ = nullptr;
  xcb_window_t root_ = 0;
  xcb_window_t window_ = 0;
  std::string keys_;
};

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_DESKTOP_TEST_WINDOW_H_
