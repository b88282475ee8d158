// What becomes of the savegames that the target folder of a copy or move already holds.
#ifndef VELLUMARK_MAINTENANCE_TARGET_SAVEGAMES_H_
#define VELLUMARK_MAINTENANCE_TARGET_SAVEGAMES_H_

#include <string>
#include <vector>

#include "foundation/failures.h"
#include "savegames/savegame_files.h"

namespace vellumark {

struct Program;

// True when the folder holds savegames and the user wants to keep them. When not, they are deleted,
// except those that are among `selected`; `not_deleted` gets those that are still there.
bool KeepTargetSavegames(Program& program, const std::string& folder,
                         const std::vector<SavegameFiles>& selected,
                         std::vector<Failure>& not_deleted);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_TARGET_SAVEGAMES_H_
