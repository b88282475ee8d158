// What the tests need of the system: folders of their own, and drives that are these folders.
#ifndef VELLUMARK_TESTS_SUPPORT_TEST_DRIVES_H_
#define VELLUMARK_TESTS_SUPPORT_TEST_DRIVES_H_

#include <map>
#include <memory>
#include <string>

#include "platform/file_system.h"
#include "platform/text.h"

namespace vellumark::testing {

// The host path of a new folder for temporary files.
std::string MakeTemporaryFolder();

// Gives a folder an attribute: read-only, on Windows hidden (read-only means nothing there).
void MakeBareNoMore(const std::string& host_folder);

// Deletes a folder with everything in it.
void RemoveTemporaryFolder(const std::string& host_folder);

// True where a folder can hold two names that differ by case only, and names that no Windows disk
// can hold.
bool DiskTellsCaseApart();

// True where everybody may make links.
bool DiskTakesLinks();

// The system's own file system, in which folders are drives for as long as this lives.
class TestDrives {
 public:
  // Host paths by letter; a folder that does not exist makes a drive that is not ready. `text` must
  // outlive it.
  TestDrives(const Text& text, std::map<char, std::string> roots);
  TestDrives(const TestDrives&) = delete;
  TestDrives& operator=(const TestDrives&) = delete;
  ~TestDrives();

  FileSystem& files() { return *files_; }

 private:
  const std::map<char, std::string> roots_;
  std::unique_ptr<FileSystem> files_;
};

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_SUPPORT_TEST_DRIVES_H_
