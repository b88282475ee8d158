// The system's own file system with a temporary folder as drive `T:`.
#ifndef VELLUMARK_TESTS_PLATFORM_DISK_FIXTURE_H_
#define VELLUMARK_TESTS_PLATFORM_DISK_FIXTURE_H_

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "platform/common/code_page_text.h"
#include "support/host_paths.h"
#include "support/temporary_folder.h"
#include "support/test_drives.h"

namespace vellumark {

class DiskTest : public ::testing::Test {
 protected:
  // The names that List finds, each followed by a bar.
  std::string Names(const std::string& pattern) {
    const Listing listing = fs_.List(pattern);
    EXPECT_EQ(listing.error, FileError::kNone) << pattern;
    std::string names;
    for (const FolderEntry& entry : listing.entries) names += entry.name + '|';
    return names;
  }

  // All files of the temporary folder with their bytes, and its folders.
  testing::Files Snapshot() const {
    testing::Files all = disk_.AllFiles();
    for (const auto& entry : std::filesystem::recursive_directory_iterator(disk_.path())) {
      all.emplace(testing::ToUtf8(entry.path().lexically_relative(disk_.path())), "/");
    }
    return all;
  }

  // Runs each call, which must answer `error` and leave everything as it was.
  void ExpectRefused(FileError error, const std::vector<std::function<FileError()>>& calls) {
    const auto before = Snapshot();
    for (std::size_t i = 0; i < calls.size(); ++i) {
      EXPECT_EQ(calls[i](), error) << "call " << i;
      EXPECT_EQ(Snapshot(), before) << "call " << i;
    }
  }

  testing::TemporaryFolder disk_;
  CodePageText text_{1252, "en", false};
  testing::TestDrives drives_{text_, {{'D', disk_ / "medium"}, {'T', disk_.path().string()}}};
  FileSystem& fs_ = drives_.files();
};

}  // namespace vellumark

#endif  // VELLUMARK_TESTS_PLATFORM_DISK_FIXTURE_H_
