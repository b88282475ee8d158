// The stand-in as an X11 program.
#include <poll.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "stand_in.h"

namespace vellumark::stand_in {
namespace {

template <typename T>
using Reply = std::unique_ptr<T, decltype(&std::free)>;

template <typename T>
Reply<T> Owned(T* reply) {
  return {reply, &std::free};
}

class X11Window final : public Window {
 public:
  X11Window() : connection_(xcb_connect(nullptr, nullptr)) {}
  ~X11Window() override { xcb_disconnect(connection_); }
  X11Window(const X11Window&) = delete;
  X11Window& operator=(const X11Window&) = delete;

  bool Open() {
    if (xcb_connection_has_error(connection_) != 0) return false;

    const xcb_setup_t* setup = xcb_get_setup(connection_);
    const xcb_screen_t* screen = xcb_setup_roots_iterator(setup).data;
    root_ = screen->root;
    window_ = xcb_generate_id(connection_);
    const std::uint32_t values[] = {screen->black_pixel,
                                    XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_FOCUS_CHANGE};
    xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window_, root_, 60, 60, 480, 360, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, static_cast<const void*>(values));
    SetProperties();
    ReadKeyboard(*setup);
    return true;
  }

  void Run() {
    stand_in_ = std::make_unique<StandIn>(*this);
    xcb_map_window(connection_, window_);
    pollfd server{xcb_get_file_descriptor(connection_), POLLIN, 0};
    while (!quitting_ && xcb_connection_has_error(connection_) == 0) {
      xcb_flush(connection_);
      poll(&server, 1, kCommandInterval);
      while (auto event = Owned(xcb_poll_for_event(connection_))) Receive(*event);
      stand_in_->ObeyNewCommands();
    }
  }

  void PutOnClipboard(const std::string& bmp_file) override {
    bmp_file_ = bmp_file;
    xcb_set_selection_owner(connection_, window_, clipboard_, XCB_CURRENT_TIME);
  }

  void Minimize() override {
    constexpr std::uint32_t kIconicState = 3;
    xcb_client_message_event_t request{};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = window_;
    request.type = Atom("WM_CHANGE_STATE");
    request.data.data32[0] = kIconicState;
    Send(root_, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY, request);
  }

  void Quit() override { quitting_ = true; }

 private:
  xcb_atom_t Atom(std::string_view name) {
    const auto cookie =
        xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const auto reply = Owned(xcb_intern_atom_reply(connection_, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
  }

  template <typename T>
  void SetProperty(xcb_window_t window, xcb_atom_t property, xcb_atom_t type, const T* items,
                   std::size_t count) {
    xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, property, type, 8 * sizeof(T),
                        static_cast<std::uint32_t>(count), items);
  }

  template <typename Event>
  void Send(xcb_window_t target, std::uint32_t mask, const Event& event) {
    char bytes[32] = {};
    static_assert(sizeof event <= sizeof bytes);
    std::memcpy(bytes, &event, sizeof event);
    xcb_send_event(connection_, 0, target, mask, static_cast<const char*>(bytes));
  }

  void SetProperties() {
    const std::string_view title = kWindowTitle;
    SetProperty(window_, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, title.data(), title.size());
    SetProperty(window_, Atom("_NET_WM_NAME"), Atom("UTF8_STRING"), title.data(), title.size());
    SetProperty(window_, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, "tomb4.exe\0tomb4.exe", 20);

    const auto process = static_cast<std::uint32_t>(getpid());
    SetProperty(window_, Atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, &process, 1);
    const xcb_atom_t close = close_;
    SetProperty(window_, Atom("WM_PROTOCOLS"), XCB_ATOM_ATOM, &close, 1);
  }

  void ReadKeyboard(const xcb_setup_t& setup) {
    first_key_ = setup.min_keycode;
    const auto count = static_cast<std::uint8_t>(setup.max_keycode - setup.min_keycode + 1);
    const auto cookie = xcb_get_keyboard_mapping(connection_, first_key_, count);
    const auto reply = Owned(xcb_get_keyboard_mapping_reply(connection_, cookie, nullptr));
    if (!reply) return;
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
    for (std::size_t key = 0; key < count; ++key) {
      symbols_.push_back(symbols[key * reply->keysyms_per_keycode]);
    }
  }

  std::string KeyName(xcb_keycode_t key) const {
    constexpr xcb_keysym_t kReturn = 0xFF0D;
    const auto place = static_cast<std::size_t>(key - first_key_);
    const xcb_keysym_t symbol = place < symbols_.size() ? symbols_[place] : XCB_NO_SYMBOL;
    if (symbol == kReturn) return "Return";
    if (symbol > ' ' && symbol <= '~') return {static_cast<char>(symbol)};
    return "code " + std::to_string(symbol);
  }

  void Receive(const xcb_generic_event_t& event) {
    switch (event.response_type & 0x7F) {
      case XCB_KEY_PRESS:
        stand_in_->KeyPressed(
            KeyName(reinterpret_cast<const xcb_key_press_event_t&>(event).detail));
        break;
      case XCB_FOCUS_IN:
      case XCB_FOCUS_OUT: {
        const auto& focus = reinterpret_cast<const xcb_focus_in_event_t&>(event);
        if (focus.mode == XCB_NOTIFY_MODE_GRAB || focus.mode == XCB_NOTIFY_MODE_UNGRAB) break;
        if (focus.detail == XCB_NOTIFY_DETAIL_POINTER) break;
        stand_in_->FocusChanged((event.response_type & 0x7F) == XCB_FOCUS_IN);
        break;
      }
      case XCB_SELECTION_REQUEST:
        OfferPicture(reinterpret_cast<const xcb_selection_request_event_t&>(event));
        break;
      case XCB_SELECTION_CLEAR:
        stand_in_->ClipboardTaken();
        break;
      case XCB_CLIENT_MESSAGE:
        if (reinterpret_cast<const xcb_client_message_event_t&>(event).data.data32[0] == close_) {
          Quit();
        }
        break;
      default:
        break;
    }
  }

  void OfferPicture(const xcb_selection_request_event_t& request) {
    xcb_atom_t property = request.property == XCB_ATOM_NONE ? request.target : request.property;
    if (request.target == targets_) {
      const xcb_atom_t offered[] = {targets_, bmp_};
      SetProperty(request.requestor, property, XCB_ATOM_ATOM, std::data(offered),
                  std::size(offered));
    } else if (request.target == bmp_) {
      SetProperty(request.requestor, property, bmp_, bmp_file_.data(), bmp_file_.size());
    } else {
      property = XCB_ATOM_NONE;
    }

    xcb_selection_notify_event_t answer{};
    answer.response_type = XCB_SELECTION_NOTIFY;
    answer.time = request.time;
    answer.requestor = request.requestor;
    answer.selection = request.selection;
    answer.target = request.target;
    answer.property = property;
    Send(request.requestor, XCB_EVENT_MASK_NO_EVENT, answer);
  }

  xcb_connection_t* connection_;
  xcb_window_t root_ = XCB_WINDOW_NONE;
  xcb_window_t window_ = XCB_WINDOW_NONE;
  const xcb_atom_t clipboard_ = Atom("CLIPBOARD");
  const xcb_atom_t targets_ = Atom("TARGETS");
  const xcb_atom_t bmp_ = Atom("image/bmp");
  const xcb_atom_t close_ = Atom("WM_DELETE_WINDOW");

  xcb_keycode_t first_key_ = 0;
  std::vector<xcb_keysym_t> symbols_;  // of each key, without modifiers

  std::string bmp_file_;
  bool quitting_ = false;
  std::unique_ptr<StandIn> stand_in_;
};

}  // namespace
}  // namespace vellumark::stand_in

int main() {
  vellumark::stand_in::X11Window window;
  if (!window.Open()) {
    std::fputs("The stand-in finds no display.\n", stderr);
    return 1;
  }
  window.Run();
}
