// A PosixFileSystem whose drive `T:` is a temporary folder.
#ifndef VELLUMARK_TESTS_PLATFORM_POSIX_POSIX_FILE_SYSTEM_FIXTURE_H_
#define VELLUMARK_TESTS_PLATFORM_POSIX_POSIX_FILE_SYSTEM_FIXTURE_H_

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "platform/posix/code_page_text.h"
#include "platform/posix/host_folder.h"
#include "platform/posix/posix_file_system.h"

namespace vellumark {

class PosixFileSystemTest : public testing::Test {
 protected:
  // Not being allowed to write holds for the owner only: the tests may run as an administrator.
  void MakeReadOnly(const std::string& name) {
    std::filesystem::permissions(host_ / name, std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::remove);
  }

  // The names that List finds, each followed by a bar; or the number of the error.
  std::string Names(const std::string& pattern) {
    const Listing listing = fs_.List(pattern);
    if (listing.error != FileError::kNone) {
      return "error " + std::to_string(static_cast<int>(listing.error));
    }
    std::string names;
    for (const FolderEntry& entry : listing.entries) names += entry.name + '|';
    return names;
  }

  HostFolder host_;
  CodePageText text_{1252, "en", false};
  PosixFileSystem fs_{text_, DriveMap{{{'D', host_ / "medium"}, {'T', host_.path()}}}};
};

}  // namespace vellumark

#endif  // VELLUMARK_TESTS_PLATFORM_POSIX_POSIX_FILE_SYSTEM_FIXTURE_H_
