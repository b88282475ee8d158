// A program under test on a disk of its own: drive T: is a temporary folder with the program in
// T:\Program, the game in T:\Game and an archive in T:\Archive. Drive N: is not ready.
#ifndef VELLUMARK_TESTS_SUPPORT_TEST_WORLD_H_
#define VELLUMARK_TESTS_SUPPORT_TEST_WORLD_H_

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

#include "platform/common/code_page_text.h"
#include "program.h"
#include "support/faulty_file_system.h"
#include "support/scripted_desktop.h"
#include "support/temporary_folder.h"
#include "support/test_drives.h"

namespace vellumark::testing {

// The bytes of a savegame file as the game writes them: the name, leftovers of memory up to the
// counter, and content that differs with `seed`.
std::string SavegameBytes(const std::string& level, std::int16_t counter, int seed = 0);

// The settings of the world's archive.
ArchiveSettings WorldSettings();

class TestWorld : public ScriptedServices {
 public:
  // The host folders of drives that it has besides.
  explicit TestWorld(std::map<char, std::string> more_drives = {});
  // The process is back in the folder it was in: operations may have changed that.
  ~TestWorld();
  TestWorld(const TestWorld&) = delete;
  TestWorld& operator=(const TestWorld&) = delete;

  // A new run of the program on the same disk; the second one with real windows.
  Program NewProgram() { return NewProgram(windows, windows); }
  Program NewProgram(Windows& shown, MainWindow& main_window);

  // Writes T:\Archive.vmk with this world's folders, and a preferences file that names it.
  void WriteArchiveFile() const;
  void WritePreferences(bool sounds = false, bool all_subfolders = false) const;

  void AddSavegame(const std::string& folder, int slot, const std::string& level,
                   std::int16_t counter) const;

  TemporaryFolder disk;
  CodePageText text{1252, "en", false};
  TestDrives drives;
  FaultyFileSystem files;

 private:
  std::filesystem::path working_folder_ = std::filesystem::current_path();
};

}  // namespace vellumark::testing

#endif  // VELLUMARK_TESTS_SUPPORT_TEST_WORLD_H_
