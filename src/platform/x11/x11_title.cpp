#include "platform/x11/x11_title.h"

#include <string_view>

#include "platform/x11/x11_connection.h"

namespace vellumark {
namespace {

std::string FromLatin1(std::string_view latin1) {
  constexpr unsigned kFirstOfTwoBytes = 0x80;
  std::string utf8;
  for (const char character : latin1) {
    const auto code = static_cast<unsigned char>(character);
    if (code < kFirstOfTwoBytes) {
      utf8 += character;
    } else {
      utf8 += static_cast<char>(0xC0U | (code >> 6U));
      utf8 += static_cast<char>(0x80U | (code & 0x3FU));
    }
  }
  return utf8;
}

std::string ReadText(X11Connection& x, WindowHandle window, xcb_atom_t name, xcb_atom_t type) {
  constexpr std::uint8_t kBits = 8;
  const Reply<xcb_get_property_reply_t> property = x.Property(window, name, type);
  if (!property || property->format != kBits) return {};

  const std::string_view text(static_cast<const char*>(xcb_get_property_value(property.get())),
                              property->value_len);
  return property->type == x.Ewmh()->UTF8_STRING ? std::string(text) : FromLatin1(text);
}

}  // namespace

std::string ReadTitle(X11Connection& x, WindowHandle window) {
  std::string title = ReadText(x, window, x.Ewmh()->_NET_WM_NAME, x.Ewmh()->UTF8_STRING);
  return title.empty() ? ReadText(x, window, XCB_ATOM_WM_NAME, XCB_GET_PROPERTY_TYPE_ANY) : title;
}

}  // namespace vellumark
