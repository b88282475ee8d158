#include "desktop/test_window.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <thread>

#include "platform/x11/x11_desktop_windows.h"

namespace vellumark::testing {

bool Becomes(const std::function<bool()>& holds) {
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (!holds()) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  return true;
}

TestWindow::TestWindow(const WindowTraits& traits, WindowHandle parent) {
  int screen = 0;
  connection_ = xcb_connect(nullptr, &screen);
  xcb_ewmh_init_atoms_replies(&ewmh_, xcb_ewmh_init_atoms(connection_, &ewmh_), nullptr);
  root_ = ewmh_.screens[screen]->root;
  window_ = xcb_generate_id(connection_);

  const std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE;
  xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window_, parent == 0 ? root_ : parent, 10,
                    10, 200, 100, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                    XCB_CW_EVENT_MASK, &events);
  State(traits);
  xcb_map_window(connection_, window_);
  xcb_flush(connection_);
  Becomes([this] { return IsVisible(); });
  // The window manager gives the focus to a new window at a moment of its own.
  if (traits.takes_focus && parent == 0) TakeFocus();
}

TestWindow::~TestWindow() {
  xcb_ewmh_connection_wipe(&ewmh_);
  xcb_disconnect(connection_);
}

void TestWindow::State(const WindowTraits& traits) {
  if (!traits.utf8_title.empty()) {
    xcb_ewmh_set_wm_name(&ewmh_, window_, static_cast<std::uint32_t>(traits.utf8_title.size()),
                         traits.utf8_title.data());
  }
  if (!traits.latin1_title.empty()) {
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NAME,
                        XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(traits.latin1_title.size()),
                        traits.latin1_title.data());
  }
  if (traits.process != 0) xcb_ewmh_set_wm_pid(&ewmh_, window_, traits.process);

  // WM_HINTS: only its word on the input focus counts.
  const std::array<std::uint32_t, 9> hints = {1, traits.takes_focus ? 1U : 0U};
  xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_HINTS,
                      XCB_ATOM_WM_HINTS, 32, hints.size(), hints.data());
}

void TestWindow::TakeFocusFor(WindowHandle active) {
  // Asked for once only: a request still waiting would take the focus back later.
  if (IsManaged()) {
    xcb_ewmh_request_change_active_window(&ewmh_, 0, window_, XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER,
                                          XCB_CURRENT_TIME, XCB_NONE);
  } else {
    xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_PARENT, window_, XCB_CURRENT_TIME);
  }
  xcb_flush(connection_);
  X11DesktopWindows desktop;
  Becomes([&] { return desktop.ActiveWindow() == active; });
}

bool TestWindow::IsManaged() {
  xcb_window_t manager = 0;
  const auto cookie = xcb_ewmh_get_supporting_wm_check(&ewmh_, root_);
  return xcb_ewmh_get_supporting_wm_check_reply(&ewmh_, cookie, &manager, nullptr) != 0;
}

bool TestWindow::IsVisible() {
  const auto cookie = xcb_get_window_attributes(connection_, window_);
  auto* reply = xcb_get_window_attributes_reply(connection_, cookie, nullptr);
  const bool visible = reply != nullptr && reply->map_state == XCB_MAP_STATE_VIEWABLE;
  std::free(reply);
  return visible;
}

std::string TestWindow::EnterKeys() {
  xcb_keycode_t enter = 36;
  while (xcb_generic_event_t* event = xcb_poll_for_event(connection_)) {
    const int type = event->response_type & 0x7F;
    const auto* key = reinterpret_cast<const xcb_key_press_event_t*>(event);
    const bool is_key = type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE;
    if (is_key && (key->detail != enter || key->state != 0)) {
      keys_ += "other ";
    } else if (is_key) {
      keys_ += type == XCB_KEY_PRESS ? "down " : "up ";
    }
    std::free(event);
  }
  return keys_;
}

bool TestWindow::IsAnyKeyDown() {
  xcb_query_keymap_reply_t* keyboard =
      xcb_query_keymap_reply(connection_, xcb_query_keymap(connection_), nullptr);
  const bool down =
      keyboard != nullptr &&
      std::ranges::any_of(keyboard->keys, [](std::uint8_t eight_keys) { return eight_keys != 0; });
  std::free(keyboard);
  return down;
}

}  // namespace vellumark::testing
