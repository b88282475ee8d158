// The display as its windows' onlooker sees it.
#ifndef VELLUMARK_BENCH_DISPLAY_H_
#define VELLUMARK_BENCH_DISPLAY_H_

#include <xcb/xcb.h>

#include <optional>
#include <string>

namespace vellumark::bench {

// For a display without a window manager and without other windows. Colours its background, so
// that a place where nothing has been painted yet can be told.
class Display {
 public:
  Display();
  ~Display();
  Display(const Display&) = delete;
  Display& operator=(const Display&) = delete;

  // The next top-level window that has been mapped since the last call; does not wait.
  std::optional<xcb_window_t> NextMapped();

  // Waits until a window is gone.
  void WaitUntilGone(xcb_window_t window);

  // True when a window's corners and its middle all show something else than the background.
  bool IsPainted(xcb_window_t window);

  std::string Title(xcb_window_t window);

  void Focus(xcb_window_t window);

 private:
  bool IsPainted(xcb_window_t window, int x, int y);

  xcb_connection_t* connection_;
  xcb_window_t root_ = 0;
};

}  // namespace vellumark::bench

#endif  // VELLUMARK_BENCH_DISPLAY_H_
