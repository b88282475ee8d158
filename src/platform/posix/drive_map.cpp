#include "platform/posix/drive_map.h"

#include <filesystem>
#include <system_error>

namespace vellumark {
namespace {

namespace fs = std::filesystem;

std::string WithoutSlashAtEnd(std::string folder) {
  while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
  return folder;
}

// The folder behind one of the prefix's drive links. That of a dead link is kept as well: its
// medium may be mounted later.
std::string FolderBehind(const fs::path& link) {
  std::error_code failure;
  const fs::path real = fs::canonical(link, failure);
  if (!failure) return real.string();

  const fs::path target = fs::read_symlink(link, failure);
  const fs::path shown = failure ? link : link.parent_path() / target;
  return WithoutSlashAtEnd(shown.lexically_normal().string());
}

}  // namespace

DriveMap ReadDriveMap(const std::string& wine_prefix, const std::string& home) {
  DriveMap drives;
  drives.roots['Z'] = std::string(1, '/');
  if (wine_prefix.empty() && home.empty()) return drives;

  std::error_code failure;
  const fs::path prefix =
      fs::absolute(wine_prefix.empty() ? fs::path(home) / ".wine" : fs::path(wine_prefix), failure);
  if (failure) return drives;

  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const fs::path link = prefix / "dosdevices" / std::string{letter, ':'};
    const fs::file_status status = fs::symlink_status(link, failure);
    if (!fs::exists(status)) continue;
    drives.roots[static_cast<char>(letter - 'a' + 'A')] = FolderBehind(link);
  }
  return drives;
}

}  // namespace vellumark
