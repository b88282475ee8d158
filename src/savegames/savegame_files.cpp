#include "savegames/savegame_files.h"

namespace vellumark {

std::vector<SavegameFiles> FilesOf(const Catalogue& catalogue,
                                   const std::vector<std::int16_t>& indices) {
  std::vector<SavegameFiles> files;
  files.reserve(indices.size());
  for (const std::int16_t index : indices) {
    if (index < 0 || static_cast<std::size_t>(index) >= catalogue.entries.size()) continue;
    const SavegameEntry& entry = catalogue.entries[static_cast<std::size_t>(index)];
    files.push_back({entry.SlotNumber, entry.SavegamePath, entry.NotePath, entry.ShotPath});
  }
  return files;
}

}  // namespace vellumark
