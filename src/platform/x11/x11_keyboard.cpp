#include "platform/x11/x11_keyboard.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <chrono>
#include <thread>
#include <vector>

#include "platform/x11/x11_connection.h"
#include "platform/x11/x11_wait.h"

namespace vellumark {
namespace {

constexpr xcb_keysym_t kReturn = 0xFF0D;

// Longer than a key is down when it is pressed once.
constexpr std::chrono::seconds kLongestHold(1);

// Games look at the keyboard once a frame and would miss a key that is up again at once, and Wine
// drops a key when the focus leaves the game in the same moment.
constexpr std::chrono::milliseconds kPress(100);

// The key that gives Enter without a modifier; 0 when there is none.
xcb_keycode_t EnterKey(xcb_connection_t* xcb) {
  const xcb_setup_t* setup = xcb_get_setup(xcb);
  const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
  const Reply<xcb_get_keyboard_mapping_reply_t> mapping(xcb_get_keyboard_mapping_reply(
      xcb, xcb_get_keyboard_mapping(xcb, setup->min_keycode, count), nullptr));
  if (!mapping || mapping->keysyms_per_keycode == 0) return 0;

  const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(mapping.get());
  for (int key = 0; key < count; ++key, symbols += mapping->keysyms_per_keycode) {
    if (*symbols == kReturn) return static_cast<xcb_keycode_t>(setup->min_keycode + key);
  }
  return 0;
}

std::vector<xcb_keycode_t> ModifierKeys(xcb_connection_t* xcb) {
  const Reply<xcb_get_modifier_mapping_reply_t> mapping(
      xcb_get_modifier_mapping_reply(xcb, xcb_get_modifier_mapping(xcb), nullptr));
  if (!mapping) return {};
  const xcb_keycode_t* first = xcb_get_modifier_mapping_keycodes(mapping.get());
  return {first, first + xcb_get_modifier_mapping_keycodes_length(mapping.get())};
}

bool IsAnyHeld(xcb_connection_t* xcb, const std::vector<xcb_keycode_t>& keys) {
  const Reply<xcb_query_keymap_reply_t> held(
      xcb_query_keymap_reply(xcb, xcb_query_keymap(xcb), nullptr));
  const auto is_held = [&held](unsigned key) {
    return (unsigned{held->keys[key / 8]} >> (key % 8) & 1U) != 0;
  };
  return held && std::ranges::any_of(keys, is_held);
}

// The key that the user has just answered a dialog with may still be down. Enter cannot be pressed
// twice, and with a modifier it is another key.
void WaitForTheUser(xcb_connection_t* xcb, xcb_keycode_t enter) {
  std::vector<xcb_keycode_t> in_the_way = ModifierKeys(xcb);
  in_the_way.push_back(enter);
  WaitUntil(kLongestHold, [&] { return !IsAnyHeld(xcb, in_the_way); });
}

void SendKey(xcb_connection_t* xcb, std::uint8_t event, xcb_keycode_t key) {
  xcb_test_fake_input(xcb, event, key, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
  xcb_flush(xcb);
}

}  // namespace

void PressEnterKey(X11Connection& x) {
  xcb_connection_t* xcb = x.Xcb();
  // Asking an extension that is not there would break the connection.
  const xcb_query_extension_reply_t* extension = xcb_get_extension_data(xcb, &xcb_test_id);
  if (extension == nullptr || extension->present == 0) return;

  const xcb_keycode_t key = EnterKey(xcb);
  if (key == 0) return;
  WaitForTheUser(xcb, key);
  SendKey(xcb, XCB_KEY_PRESS, key);
  std::this_thread::sleep_for(kPress);
  SendKey(xcb, XCB_KEY_RELEASE, key);
}

}  // namespace vellumark
