// Where the catalogue's game-folder entries point while the player's slots are in the backup.
#ifndef VELLUMARK_GAME_BACKUP_PATHS_H_
#define VELLUMARK_GAME_BACKUP_PATHS_H_

#include <string>

#include "savegames/catalogue_state.h"

namespace vellumark {

class Text;

enum class Occurrences { kFirst, kEvery };

// Replaces a folder's path in the three paths of an entry, found without regard to case.
void PointIntoFolder(const Text& text, SavegameEntry& entry, const std::string& from,
                     const std::string& to, Occurrences which);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_BACKUP_PATHS_H_
