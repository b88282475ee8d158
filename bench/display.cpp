#include "display.h"

#include <unistd.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <utility>

#include "bench_run.h"

namespace vellumark::bench {
namespace {

constexpr std::uint32_t kBackground = 0xFF00FF;
constexpr std::uint32_t kColourBits = 0xFFFFFF;

// An answer of the display, or null.
template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> Owned(Reply* reply) {
  return {reply, &std::free};
}

}  // namespace

Display::Display() : connection_(xcb_connect(nullptr, nullptr)) {
  Require(xcb_connection_has_error(connection_) == 0, "There is no display.");
  root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
  const std::array<std::uint32_t, 2> values = {kBackground, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY};
  xcb_change_window_attributes(connection_, root_, XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK,
                               values.data());
  xcb_clear_area(connection_, 0, root_, 0, 0, 0, 0);
  xcb_flush(connection_);
}

Display::~Display() { xcb_disconnect(connection_); }

std::optional<xcb_window_t> Display::NextMapped() {
  while (const auto event = Owned(xcb_poll_for_event(connection_))) {
    if ((event->response_type & 0x7F) != XCB_MAP_NOTIFY) continue;
    xcb_map_notify_event_t mapped;
    std::memcpy(&mapped, event.get(), sizeof mapped);
    return mapped.window;
  }
  Require(xcb_connection_has_error(connection_) == 0, "The display has gone.");
  return std::nullopt;
}

void Display::WaitUntilGone(xcb_window_t window) {
  constexpr useconds_t kPause = 1000;
  while (
      Owned(xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr))) {
    usleep(kPause);
  }
}

bool Display::IsPainted(xcb_window_t window) {
  constexpr int kInset = 3;
  const auto size =
      Owned(xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr));
  if (!size) return false;
  const int right = size->width - 1 - kInset;
  const int bottom = size->height - 1 - kInset;
  return IsPainted(window, right, bottom) && IsPainted(window, kInset, kInset) &&
         IsPainted(window, right, kInset) && IsPainted(window, kInset, bottom) &&
         IsPainted(window, right / 2, bottom / 2);
}

bool Display::IsPainted(xcb_window_t window, int x, int y) {
  const auto cookie =
      xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window, static_cast<std::int16_t>(x),
                    static_cast<std::int16_t>(y), 1, 1, ~std::uint32_t{0});
  const auto image = Owned(xcb_get_image_reply(connection_, cookie, nullptr));
  std::uint32_t pixel = 0;
  if (!image || xcb_get_image_data_length(image.get()) < static_cast<int>(sizeof pixel)) {
    return false;
  }
  std::memcpy(&pixel, xcb_get_image_data(image.get()), sizeof pixel);
  return (pixel & kColourBits) != kBackground;
}

std::string Display::Title(xcb_window_t window) {
  constexpr std::uint32_t kMostWords = 64;
  const auto cookie =
      xcb_get_property(connection_, 0, window, XCB_ATOM_WM_NAME, XCB_ATOM_ANY, 0, kMostWords);
  const auto title = Owned(xcb_get_property_reply(connection_, cookie, nullptr));
  if (!title) return {};
  return {static_cast<const char*>(xcb_get_property_value(title.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(title.get()))};
}

void Display::Focus(xcb_window_t window) {
  xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
  xcb_flush(connection_);
}

}  // namespace vellumark::bench
