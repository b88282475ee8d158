#include "support/test_world.h"

#include <utility>

#include "archive/archive_file.h"
#include "foundation/preferences_file.h"

namespace vellumark::testing {
namespace {

using Roots = std::map<char, std::string>;

Roots With(char letter, const std::string& root, Roots roots) {
  roots[letter] = root;
  return roots;
}

}  // namespace

std::string SavegameBytes(const std::string& level, std::int16_t counter, int seed) {
  static constexpr std::string_view kLeftovers = ",\rQx\xE9,\x8D\r\nab\xFF;,\r";
  std::string bytes = level + '\0';
  while (bytes.size() < 75) bytes += kLeftovers[bytes.size() % kLeftovers.size()];
  const auto word = static_cast<std::uint16_t>(counter);
  bytes += static_cast<char>(word & 0xFF);
  bytes += static_cast<char>(word >> 8);
  bytes += std::string(2, '\0');
  for (int i = 0; i < 400; ++i) bytes += static_cast<char>((i * 7 + seed * 31 + counter) & 0xFF);
  return bytes;
}

ArchiveSettings WorldSettings() {
  return {"Slot", "T:\\Archive", "T:\\Game", "T:\\Game\\tomb4.exe", 15, 0};
}

TestWorld::TestWorld(Roots more_drives)
    : drives(text, With('N', (disk.path() / "no medium").string(),
                        With('T', disk.path().string(), std::move(more_drives)))),
      files(drives.files()) {
  disk.MakeFolder("Program");
  disk.MakeFolder("Game");
  disk.MakeFolder("Archive");
  disk.Write("Program/default_shot.jpg", "picture");
  disk.Write("Game/tomb4.exe", "game");
}

TestWorld::~TestWorld() { std::filesystem::current_path(working_folder_); }

Program TestWorld::NewProgram(Windows& shown, MainWindow& main_window) {
  Program program = ScriptedServices::NewProgram(files, text, shown, main_window);
  program.paths.ProgramFolder = "T:\\Program";
  program.trust.programs = {WorldSettings().GameExecutable};
  return program;
}

void TestWorld::WriteArchiveFile() const {
  disk.Write("Archive.vmk", EncodeArchive(WorldSettings()));
}

void TestWorld::WritePreferences(bool sounds_on, bool all_subfolders) const {
  Preferences preferences;
  preferences.LastArchive = "T:\\Archive.vmk";
  preferences.ShotFolder = "T:\\Program";
  preferences.SoundEffects = sounds_on;
  preferences.ScanAllSubfolders = all_subfolders;
  disk.Write("Program/manager.prf", EncodePreferences(preferences));
}

void TestWorld::AddSavegame(const std::string& folder, int slot, const std::string& level,
                            std::int16_t counter) const {
  disk.Write(folder + "/savegame." + std::to_string(slot), SavegameBytes(level, counter, slot));
}

}  // namespace vellumark::testing
