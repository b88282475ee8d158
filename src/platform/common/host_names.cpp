#include "platform/common/host_names.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace vellumark {
namespace {

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char UpperAscii(char character) {
  return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                              : character;
}

// CON, PRN, AUX, NUL, COM1..COM9 and LPT1..LPT9 name devices, also with an extension.
bool IsDeviceName(std::string_view name) {
  std::string_view stem = name.substr(0, name.find('.'));
  while (!stem.empty() && stem.back() == ' ') stem.remove_suffix(1);
  if (stem.size() != 3 && stem.size() != 4) return false;

  std::string upper(stem);
  std::transform(upper.begin(), upper.end(), upper.begin(), UpperAscii);
  if (upper.size() == 3) {
    return upper == "CON" || upper == "PRN" || upper == "AUX" || upper == "NUL";
  }
  return (upper.compare(0, 3, "COM") == 0 || upper.compare(0, 3, "LPT") == 0) && upper[3] >= '1' &&
         upper[3] <= '9';
}

bool IsContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

// The length of the well-formed UTF-8 character at the start of a text that is not empty, or 0.
std::size_t CharacterLength(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (first < 0x80) return 1;

  std::size_t length = 0;
  if (first >= 0xC2 && first <= 0xDF) length = 2;
  if (first >= 0xE0 && first <= 0xEF) length = 3;
  if (first >= 0xF0 && first <= 0xF4) length = 4;
  if (length == 0 || text.size() < length) return 0;
  if (!std::all_of(text.begin() + 1, text.begin() + static_cast<std::ptrdiff_t>(length),
                   IsContinuation)) {
    return 0;
  }

  // Longer than needed, halves of a pair, or beyond the last character.
  const auto second = static_cast<unsigned char>(text[1]);
  if (first == 0xE0 && second < 0xA0) return 0;
  if (first == 0xED && second > 0x9F) return 0;
  if (first == 0xF0 && second < 0x90) return 0;
  if (first == 0xF4 && second > 0x8F) return 0;
  return length;
}

}  // namespace

bool IsWindowsName(std::string_view name) {
  if (name.empty() || name.back() == ' ' || name.back() == '.') return false;
  for (const char character : name) {
    if (static_cast<unsigned char>(character) < 0x20) return false;
    switch (character) {
      case '"':
      case '*':
      case '/':
      case ':':
      case '<':
      case '>':
      case '?':
      case '\\':
      case '|':
        return false;
      default:
        break;
    }
  }
  return !IsDeviceName(name);
}

std::string ShownName(std::string_view host_name) {
  constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
  std::string shown;
  while (!host_name.empty()) {
    const std::size_t length = CharacterLength(host_name);
    shown += length == 0 ? kReplacement : host_name.substr(0, length);
    host_name.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return shown;
}

PathNames::PathNames(const Text& text) : text_(text), lower_() {
  for (std::size_t byte = 0; byte < lower_.size(); ++byte) {
    const auto character = static_cast<char>(byte);
    lower_[byte] = text.LowerPath(std::string_view(&character, 1))[0];
  }
}

std::string PathNames::Fold(std::string_view name) const {
  std::string folded(name);
  for (char& character : folded) character = lower_[static_cast<unsigned char>(character)];
  return folded;
}

bool PathNames::FoldsTo(std::string_view name, std::string_view folded) const {
  return std::equal(name.begin(), name.end(), folded.begin(), folded.end(),
                    [this](char a, char b) { return lower_[static_cast<unsigned char>(a)] == b; });
}

bool PathNames::HostNameFoldsTo(std::string_view host_name, std::string_view folded) const {
  if (IsAscii(host_name)) return FoldsTo(host_name, folded);
  const CoreName name = FromHost(host_name);
  return name.use == NameUse::kUsable && FoldsTo(name.bytes, folded);
}

std::string PathNames::ToHost(std::string_view name) const {
  return IsAscii(name) ? std::string(name) : text_.ToUtf8(name);
}

CoreName PathNames::FromHost(std::string_view host_name) const {
  CoreName name;
  if (IsAscii(host_name)) {
    name.bytes = host_name;
  } else {
    const std::string shown = ShownName(host_name);
    EncodedText encoded = text_.FromUtf8(shown);
    name.bytes = std::move(encoded.bytes);
    if (!encoded.missing.empty() || shown != host_name) name.use = NameUse::kNotInCodePage;
  }

  if (name.use == NameUse::kUsable && !IsWindowsName(name.bytes)) {
    name.use = NameUse::kNotAWindowsName;
  }
  return name;
}

}  // namespace vellumark
