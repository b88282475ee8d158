// Which files the backup of the player's slots should hold.
#ifndef VELLUMARK_SAVEGAMES_BACKUP_LIST_H_
#define VELLUMARK_SAVEGAMES_BACKUP_LIST_H_

#include <string>

namespace vellumark {

struct Program;

// The user has deleted or moved a file: when it lies in the backup folder, a restore no longer
// expects it there.
void ForgetBackedUp(Program& program, const std::string& path);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_BACKUP_LIST_H_
