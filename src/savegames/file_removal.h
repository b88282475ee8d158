// Deleting files of savegames that the user has given up, or that have been moved.
#ifndef VELLUMARK_SAVEGAMES_FILE_REMOVAL_H_
#define VELLUMARK_SAVEGAMES_FILE_REMOVAL_H_

#include <string>
#include <vector>

#include "foundation/failures.h"

namespace vellumark {

struct Program;

// Deletes these files in their order, read-only ones too; a missing one is skipped. The backup of
// the player's slots no longer counts on those that are gone. Answers the files that are still
// there.
std::vector<Failure> RemoveFiles(Program& program, const std::vector<std::string>& paths);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_FILE_REMOVAL_H_
