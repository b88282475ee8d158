// The files of savegames, as a command remembers them when it starts.
#ifndef VELLUMARK_SAVEGAMES_SAVEGAME_FILES_H_
#define VELLUMARK_SAVEGAMES_SAVEGAME_FILES_H_

#include <cstdint>
#include <vector>

#include "savegames/catalogue_state.h"

namespace vellumark {

// The files of these catalogue entries, in that order. Indices beyond the catalogue are left out.
std::vector<SavegameFiles> FilesOf(const Catalogue& catalogue,
                                   const std::vector<std::int16_t>& indices);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_SAVEGAME_FILES_H_
