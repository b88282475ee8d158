#include "platform/common/windows_path.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "platform/common/host_names.h"

namespace vellumark {
namespace {

// The upper-case letter of a text that begins with `x:`, or 0.
char LeadingDrive(std::string_view path) {
  if (path.size() < 2 || path[1] != ':') return 0;
  if (path[0] >= 'A' && path[0] <= 'Z') return path[0];
  if (path[0] >= 'a' && path[0] <= 'z') return static_cast<char>(path[0] - 'a' + 'A');
  return 0;
}

void AddNames(std::string_view rest, std::vector<std::string>* names) {
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\\'), rest.size());
    const std::string_view name = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));

    if (name.empty() || name == ".") continue;
    if (name != "..") {
      names->emplace_back(name);
    } else if (!names->empty()) {
      names->pop_back();
    }
  }
}

}  // namespace

std::string WindowsPath::Joined() const {
  std::string joined{drive, ':'};
  for (const std::string& name : names) {
    joined += '\\';
    joined += name;
  }
  return joined;
}

bool WindowsPath::HasOnlyWindowsNames() const {
  return std::all_of(names.begin(), names.end(), IsWindowsName);
}

std::optional<WindowsPath> ParseWindowsPath(std::string_view path, const WindowsPath& current) {
  if (path.empty() || path.substr(0, 2) == R"(\\)") return std::nullopt;

  WindowsPath result;
  result.drive = current.drive;
  const char drive = LeadingDrive(path);
  if (drive != 0) {
    result.drive = drive;
    path.remove_prefix(2);
  }

  const bool from_root = drive != 0 && path.empty();
  const bool relative = !from_root && path[0] != '\\';
  if (relative && result.drive == current.drive) result.names = current.names;
  AddNames(path, &result.names);
  return result;
}

std::optional<ListPattern> ParseListPattern(std::string_view pattern, const WindowsPath& current) {
  std::optional<WindowsPath> folder = ParseWindowsPath(pattern, current);
  if (!folder) return std::nullopt;
  std::string names = "*";
  if (!folder->names.empty()) {
    names = std::move(folder->names.back());
    folder->names.pop_back();
  }
  return ListPattern{std::move(*folder), std::move(names)};
}

}  // namespace vellumark
