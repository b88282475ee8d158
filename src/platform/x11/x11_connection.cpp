#include "platform/x11/x11_connection.h"

#include <csignal>
#include <string_view>

namespace vellumark {
namespace {

// In units of 4 bytes; longer than any title or list of windows.
constexpr std::uint32_t kLongestProperty = 1U << 16U;

xcb_atom_t Atom(xcb_connection_t* xcb, std::string_view name) {
  const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
      xcb, xcb_intern_atom(xcb, 0, static_cast<std::uint16_t>(name.size()), name.data()), nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

// A server that goes away shall end in requests without answer, not in a signal.
void IgnoreBrokenPipes() { std::signal(SIGPIPE, SIG_IGN); }

}  // namespace

std::unique_ptr<X11Connection> X11Connection::Open() {
  std::unique_ptr<X11Connection> opened(new X11Connection);
  xcb_connection_t* connection = xcb_connect(nullptr, &opened->screen_number_);
  if (xcb_connection_has_error(connection) == 0) {
    IgnoreBrokenPipes();
    if (opened->Prepare(connection)) return opened;
  }
  xcb_disconnect(connection);
  return nullptr;
}

bool X11Connection::Prepare(xcb_connection_t* connection) {
  // What this allocates it gives back itself when it fails.
  xcb_ewmh_connection_t ewmh = {};
  xcb_intern_atom_cookie_t* cookies = xcb_ewmh_init_atoms(connection, &ewmh);
  if (cookies == nullptr || xcb_ewmh_init_atoms_replies(&ewmh, cookies, nullptr) == 0) return false;
  ewmh_ = ewmh;

  root_ = ewmh_.screens[screen_number_]->root;
  client_leader_ = Atom(connection, "WM_CLIENT_LEADER");

  clock_window_ = xcb_generate_id(connection);
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(connection, 0, clock_window_, root_, -1, -1, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  return true;
}

X11Connection::~X11Connection() {
  if (ewmh_.connection == nullptr) return;
  xcb_connection_t* connection = ewmh_.connection;
  xcb_ewmh_connection_wipe(&ewmh_);
  xcb_disconnect(connection);
}

bool X11Connection::IsAlive() const {
  // Reading what has come in is also what notices that nothing more can come.
  while (const Reply<xcb_generic_event_t> dropped{xcb_poll_for_event(Xcb())}) {
  }
  return xcb_connection_has_error(Xcb()) == 0;
}

Reply<xcb_get_property_reply_t> X11Connection::Property(xcb_window_t window, xcb_atom_t name,
                                                        xcb_atom_t type) {
  return Reply<xcb_get_property_reply_t>(xcb_get_property_reply(
      Xcb(), xcb_get_property(Xcb(), 0, window, name, type, 0, kLongestProperty), nullptr));
}

std::vector<std::uint32_t> X11Connection::Numbers(xcb_window_t window, xcb_atom_t name,
                                                  xcb_atom_t type) {
  constexpr std::uint8_t kBits = 32;
  const Reply<xcb_get_property_reply_t> property = Property(window, name, type);
  if (!property || property->format != kBits) return {};
  const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(property.get()));
  return {first, first + property->value_len};
}

std::uint32_t X11Connection::Number(xcb_window_t window, xcb_atom_t name, xcb_atom_t type) {
  const std::vector<std::uint32_t> numbers = Numbers(window, name, type);
  return numbers.empty() ? 0 : numbers.front();
}

xcb_timestamp_t X11Connection::ServerTime() {
  // A change that changes nothing is answered by an event with the time.
  xcb_change_property(Xcb(), XCB_PROP_MODE_APPEND, clock_window_, XCB_ATOM_WM_NAME, XCB_ATOM_STRING,
                      8, 0, nullptr);
  xcb_flush(Xcb());
  while (const Reply<xcb_generic_event_t> event{xcb_wait_for_event(Xcb())}) {
    if ((event->response_type & ~0x80U) != XCB_PROPERTY_NOTIFY) continue;
    return reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->time;
  }
  return XCB_CURRENT_TIME;
}

}  // namespace vellumark
