// A temporary folder of the host, filled and inspected past the file system under test.
#ifndef VELLUMARK_TESTS_SUPPORT_HOST_FOLDER_H_
#define VELLUMARK_TESTS_SUPPORT_HOST_FOLDER_H_

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "support/host_paths.h"
#include "support/test_drives.h"

namespace vellumark {

class HostFolder {
 public:
  HostFolder() : path_(testing::MakeTemporaryFolder()) {}
  HostFolder(const HostFolder&) = delete;
  HostFolder& operator=(const HostFolder&) = delete;
  ~HostFolder() { testing::RemoveTemporaryFolder(path_); }

  const std::string& path() const { return path_; }
  std::string operator/(const std::string& name) const { return path_ + '/' + name; }

  // Makes the file and the folders on the way to it.
  void Put(const std::string& name, const std::string& bytes) const {
    const std::filesystem::path file = testing::FromUtf8(*this / name);
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
  }

  // The file's bytes, or `(none)`.
  std::string Get(const std::string& name) const {
    std::ifstream file(testing::FromUtf8(*this / name), std::ios::binary);
    if (!file) return "(none)";
    return {std::istreambuf_iterator<char>(file), {}};
  }

  bool Has(const std::string& name) const {
    return std::filesystem::exists(
        std::filesystem::symlink_status(testing::FromUtf8(*this / name)));
  }

 private:
  std::string path_;
};

}  // namespace vellumark

#endif  // VELLUMARK_TESTS_SUPPORT_HOST_FOLDER_H_
