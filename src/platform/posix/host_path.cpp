#include "platform/posix/host_path.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace vellumark {
namespace {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

Names SplitAtSlashes(std::string_view path) {
  Names names;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find('/'), path.size());
    if (end > 0) names.emplace_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return names;
}

std::string JoinWithSlashes(const Names& names) {
  std::string path;
  for (const std::string& name : names) path += '/' + name;
  return path.empty() ? "/" : path;
}

// The names from the root on, without links to folders, `.` and `..`.
Names RealNames(const std::string& host_path) {
  const Names spelled = SplitAtSlashes(host_path);
  Names real;
  for (const std::string& name : spelled) {
    if (name == ".") continue;
    if (name == "..") {
      if (!real.empty()) real.pop_back();
      continue;
    }

    real.push_back(name);
    std::error_code failure;
    const fs::path reached = JoinWithSlashes(real);
    if (!fs::is_symlink(reached, failure) || !fs::is_directory(reached, failure)) continue;
    const fs::path target = fs::canonical(reached, failure);
    if (!failure) real = SplitAtSlashes(target.string());
  }
  return real;
}

bool IsBelow(const Names& root, const Names& path) {
  return root.size() <= path.size() && std::equal(root.begin(), root.end(), path.begin());
}

}  // namespace

std::optional<WindowsPath> WindowsPathFromHost(const std::string& host_path, const DriveMap& drives,
                                               const PathNames& names) {
  const Names real = RealNames(host_path);

  // Letters come in order, so Z gives way to an equal without being asked.
  WindowsPath result;
  std::optional<std::size_t> longest;
  for (const auto& [letter, root] : drives.roots) {
    const Names root_names = RealNames(root);
    if (!IsBelow(root_names, real) || (longest && root_names.size() <= *longest)) continue;
    longest = root_names.size();
    result.drive = letter;
  }
  if (!longest) return std::nullopt;

  for (std::size_t i = *longest; i < real.size(); ++i) {
    CoreName name = names.FromHost(real[i]);
    if (name.use != NameUse::kUsable) return std::nullopt;
    result.names.push_back(std::move(name.bytes));
  }
  return result;
}

}  // namespace vellumark
