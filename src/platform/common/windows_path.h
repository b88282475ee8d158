// Paths as the core writes them, taken apart. Nothing here looks at the disk.
#ifndef VELLUMARK_PLATFORM_COMMON_WINDOWS_PATH_H_
#define VELLUMARK_PLATFORM_COMMON_WINDOWS_PATH_H_

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellumark {

// An absolute path: a drive, and the names from its root on. `.` and `..` are resolved.
struct WindowsPath {
  char drive = 'Z';  // upper case
  std::vector<std::string> names;

  // `X:\name\name`, or `X:` for the root.
  std::string Joined() const;
  // True when each name is one that a file can have.
  bool HasOnlyWindowsNames() const;
};

// Reads a path; a relative one counts from `current`, and so does `X:name` when the current folder
// is on that drive (otherwise from its root). `X:` alone is the root. Separators may be doubled
// and may stand at the end. The names are not checked. Empty for an empty text and for the name
// of a computer in a network (`\\computer\folder`), which no drive stands for.
std::optional<WindowsPath> ParseWindowsPath(std::string_view path, const WindowsPath& current);

// A folder, and the names in it that are meant (with `*` and `?`).
struct ListPattern {
  WindowsPath folder;
  std::string names;
};

// The same for what is to be listed: the last name is the pattern, and a drive alone lists its
// root.
std::optional<ListPattern> ParseListPattern(std::string_view pattern, const WindowsPath& current);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_COMMON_WINDOWS_PATH_H_
