// A folder of the real disk for one test.
#ifndef VELLUMARK_TESTS_SUPPORT_TEMPORARY_FOLDER_H_
#define VELLUMARK_TESTS_SUPPORT_TEMPORARY_FOLDER_H_

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vellumark::testing {

// Contents by path, relative and with slashes.
using Files = std::map<std::string, std::string>;

class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  // The host path of something in the folder, in UTF-8.
  std::string operator/(const std::string& name) const;

  // Paths are relative to the folder, with slashes. Folders on the way are made.
  void Write(const std::string& file, std::string_view bytes) const;
  std::string Read(const std::string& file) const;
  bool Exists(const std::string& file) const;
  void MakeFolder(const std::string& folder) const;
  // Not being allowed to write holds for the owner only: the tests may run as an administrator.
  void MakeReadOnly(const std::string& file) const;

  // Deletes files, and folders with everything in them.
  void Remove(const std::vector<std::string>& names) const;

  // The names in a folder, sorted; the second answer puts a bar behind each.
  std::vector<std::string> Names(const std::string& folder) const;
  std::string Listed(const std::string& folder) const;

  // Every file below a folder of it with its content.
  Files AllFiles(const std::string& folder = {}) const;

 private:
  std::filesystem::path path_;
};

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_SUPPORT_TEMPORARY_FOLDER_H_
