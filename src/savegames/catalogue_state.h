// The one view of the archive: every savegame that the last scan found.
#ifndef VELLUMARK_SAVEGAMES_CATALOGUE_STATE_H_
#define VELLUMARK_SAVEGAMES_CATALOGUE_STATE_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace vellumark {

struct SavegameEntry {
  std::string LevelName;
  std::int16_t InternalCounter = 0;
  std::int16_t FolderNumber = 0;  // position of the sub-folder in the scan, from 1; 0: game folder
  std::int16_t SlotNumber = 0;
  std::string NoteText;      // in its stored form, empty when there is no note file
  std::string SavegamePath;  // lower case
  std::string NotePath;      // whether or not the file exists
  std::string ShotPath;      // whether or not the file exists

  bool operator==(const SavegameEntry&) const = default;
};

// The files of a savegame, as a command remembers them when it starts.
struct SavegameFiles {
  std::int16_t slot = 0;
  std::string savegame{};
  std::string note{};  // whether or not the file exists
  std::string shot{};  // whether or not the file exists
};

// Archived savegames first, sub-folder by sub-folder and by rising slot, then those of the game
// folder. Indices are valid until the next scan.
struct Catalogue {
  static constexpr std::size_t kMostEntries = 10001;
  static constexpr std::size_t kMostFolders = 10001;

  std::vector<SavegameEntry> entries;
  std::int16_t FolderCount = 0;  // archive sub-folders that the last scan found

  std::int16_t EntryCount() const { return static_cast<std::int16_t>(entries.size()); }
};

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_CATALOGUE_STATE_H_
