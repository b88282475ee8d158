#include "support/test_drives.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "platform/posix/posix_file_system.h"

namespace vellumark::testing {

namespace fs = std::filesystem;

std::string MakeTemporaryFolder() {
  std::string name = (fs::canonical(fs::temp_directory_path()) / "vellumark-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
  return name;
}

void MakeBareNoMore(const std::string& host_folder) {
  fs::permissions(host_folder, fs::perms::owner_write, fs::perm_options::remove);
}

void RemoveTemporaryFolder(const std::string& host_folder) {
  std::error_code ignored;
  for (const auto& entry : fs::recursive_directory_iterator(host_folder, ignored)) {
    const bool folder = entry.is_directory(ignored) && !entry.is_symlink(ignored);
    if (folder) fs::permissions(entry, fs::perms::owner_all, ignored);
  }
  fs::remove_all(host_folder, ignored);
}

bool DiskTellsCaseApart() { return true; }

bool DiskTakesLinks() { return true; }

TestDrives::TestDrives(const Text& text, std::map<char, std::string> roots)
    : roots_(std::move(roots)), files_(std::make_unique<PosixFileSystem>(text, DriveMap{roots_})) {}

TestDrives::~TestDrives() = default;

}  // namespace vellumark::testing
