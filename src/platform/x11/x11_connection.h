// The connection to the X server.
#ifndef VELLUMARK_PLATFORM_X11_X11_CONNECTION_H_
#define VELLUMARK_PLATFORM_X11_X11_CONNECTION_H_

#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <vector>

namespace vellumark {

struct FreeReply {
  void operator()(void* reply) const { std::free(reply); }
};

// What the server answered; null when it answered with an error or is gone.
template <typename T>
using Reply = std::unique_ptr<T, FreeReply>;

// Windows belong to other programs and may vanish between two requests. So every answer may be
// missing, and errors that belong to no answer are dropped.
class X11Connection {
 public:
  // Connects to the display that DISPLAY names; null when that cannot be reached.
  static std::unique_ptr<X11Connection> Open();
  ~X11Connection();
  X11Connection(const X11Connection&) = delete;
  X11Connection& operator=(const X11Connection&) = delete;

  // False once the server is gone; there is no way back then.
  bool IsAlive() const;

  xcb_connection_t* Xcb() const { return ewmh_.connection; }
  xcb_window_t Root() const { return root_; }
  int ScreenNumber() const { return screen_number_; }

  // The atoms of the desktop's own properties, and the requests to the window manager.
  xcb_ewmh_connection_t* Ewmh() { return &ewmh_; }
  xcb_atom_t ClientLeader() const { return client_leader_; }

  // A property of a window; `type` may be XCB_GET_PROPERTY_TYPE_ANY. One that is not set or has
  // another type comes with no value.
  Reply<xcb_get_property_reply_t> Property(xcb_window_t window, xcb_atom_t name, xcb_atom_t type);

  // The values of a property of 32-bit numbers, windows among them; none when it is not set.
  std::vector<std::uint32_t> Numbers(xcb_window_t window, xcb_atom_t name, xcb_atom_t type);
  // The first of them; 0 when there is none.
  std::uint32_t Number(xcb_window_t window, xcb_atom_t name, xcb_atom_t type);

  // The server's clock, as events carry it; XCB_CURRENT_TIME when the server is gone.
  xcb_timestamp_t ServerTime();

 private:
  X11Connection() = default;
  bool Prepare(xcb_connection_t* connection);

  xcb_ewmh_connection_t ewmh_ = {};
  int screen_number_ = 0;
  xcb_window_t root_ = 0;
  xcb_window_t clock_window_ = 0;  // never shown; its property changes tell the time
  xcb_atom_t client_leader_ = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_X11_X11_CONNECTION_H_
