// The system's own file system with a temporary folder as drive `T:`.
#ifndef VELLUMARK_TESTS_PLATFORM_DISK_FIXTURE_H_
#define VELLUMARK_TESTS_PLATFORM_DISK_FIXTURE_H_

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/common/code_page_text.h"
#include "support/host_folder.h"
#include "support/host_paths.h"
#include "support/test_drives.h"

namespace vellumark {

class DiskTest : public ::testing::Test {
 protected:
  // Not being allowed to write holds for the owner only: the tests may run as an administrator.
  void MakeReadOnly(const std::string& name) const {
    std::filesystem::permissions(host_ / name,
                                 std::filesystem::perms::owner_write |
                                     std::filesystem::perms::group_write |
                                     std::filesystem::perms::others_write,
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

  // All files of the temporary folder with their bytes.
  std::map<std::string, std::string> Snapshot() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(host_.path())) {
      const std::string name = testing::ToUtf8(entry.path().lexically_relative(host_.path()));
      files[name] = entry.is_regular_file() ? host_.Get(name) : "/";
    }
    return files;
  }

  // Runs each call, which must answer `error` and leave everything as it was.
  void ExpectRefused(FileError error, const std::vector<std::function<FileError()>>& calls) {
    const auto before = Snapshot();
    for (std::size_t i = 0; i < calls.size(); ++i) {
      EXPECT_EQ(calls[i](), error) << "call " << i;
      EXPECT_EQ(Snapshot(), before) << "call " << i;
    }
  }

  HostFolder host_;
  CodePageText text_{1252, "en", false};
  testing::TestDrives drives_{text_, {{'D', host_ / "medium"}, {'T', host_.path()}}};
  FileSystem& fs_ = drives_.files();
};

}  // namespace vellumark

#endif  // VELLUMARK_TESTS_PLATFORM_DISK_FIXTURE_H_
