#include "support/test_drives.h"

#include <windows.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>

#include "platform/windows/windows_file_system.h"
#include "support/windows/drive_letter.h"

namespace vellumark::testing {

namespace fs = std::filesystem;

std::string MakeTemporaryFolder() {
  static int count = 0;
  const std::string name = "vellumark-" + std::to_string(GetCurrentProcessId()) + "-";
  for (int tries = 0; tries < 100; ++tries) {
    const fs::path folder = fs::temp_directory_path() / (name + std::to_string(++count));
    if (fs::create_directory(folder)) return folder.generic_string();
  }
  throw std::runtime_error("no temporary folder");
}

void MakeBareNoMore(const std::string& host_folder) {
  SetFileAttributesW(fs::path(host_folder).c_str(), FILE_ATTRIBUTE_HIDDEN);
}

void RemoveTemporaryFolder(const std::string& host_folder) {
  // The system deletes nothing that is read-only, and no folder in which the process works.
  fs::current_path(fs::temp_directory_path());
  std::error_code ignored;
  fs::recursive_directory_iterator entry(host_folder, ignored);
  for (; entry != fs::recursive_directory_iterator(); entry.increment(ignored)) {
    SetFileAttributesW(entry->path().c_str(), FILE_ATTRIBUTE_NORMAL);
  }
  fs::remove_all(host_folder, ignored);
}

bool DiskTellsCaseApart() { return false; }

bool DiskTakesLinks() { return false; }

TestDrives::TestDrives(const Text& text, std::map<char, std::string> roots)
    : roots_(std::move(roots)) {
  for (const auto& [letter, root] : roots_) {
    // The system takes only a folder that exists.
    const bool made = fs::create_directory(root);
    const std::wstring folder = fs::path(root).make_preferred().wstring();
    if (!DefineDrive(letter, folder)) throw std::runtime_error("no drive for " + root);
    if (made) fs::remove(root);
  }
  files_ = std::make_unique<WindowsFileSystem>(text);
}

TestDrives::~TestDrives() {
  for (const auto& each : roots_) RemoveDrive(each.first);
}

}  // namespace vellumark::testing
