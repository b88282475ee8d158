// Single file names: how the core spells them (code page) and how the disk does (UTF-8).
#ifndef VELLUMARK_PLATFORM_COMMON_HOST_NAMES_H_
#define VELLUMARK_PLATFORM_COMMON_HOST_NAMES_H_

#include <array>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace vellumark {

// True for a name that Windows could hold: none of its reserved characters, no blank or dot at
// the end, not the name of a device.
bool IsWindowsName(std::string_view name);

// A host name as UTF-8 that can be shown, whatever its bytes are.
std::string ShownName(std::string_view host_name);

enum class NameUse { kUsable, kNotInCodePage, kNotAWindowsName };

struct CoreName {
  std::string bytes;  // with `?` for what the code page lacks
  NameUse use = NameUse::kUsable;
};

// The code page's view of names. Refers to the Text, which must outlive it.
class PathNames {
 public:
  explicit PathNames(const Text& text);

  // The key by which two names are the same: Text::LowerPath.
  std::string Fold(std::string_view name) const;
  // True when a host name is usable and the name whose key is `folded` (of a usable name). Cheaper
  // than to convert and fold it.
  bool HostNameFoldsTo(std::string_view host_name, std::string_view folded) const;

  std::string ToHost(std::string_view name) const;
  CoreName FromHost(std::string_view host_name) const;

 private:
  bool FoldsTo(std::string_view name, std::string_view folded) const;

  const Text& text_;
  std::array<char, 256> lower_;  // LowerPath of each byte: asked once, used for every name
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_COMMON_HOST_NAMES_H_
