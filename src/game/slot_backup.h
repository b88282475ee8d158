// The copy of the player's own slots, in BackupFolder, while archived savegames are in the game's.
#ifndef VELLUMARK_GAME_SLOT_BACKUP_H_
#define VELLUMARK_GAME_SLOT_BACKUP_H_

#include <string>
#include <vector>

#include "foundation/failures.h"

namespace vellumark {

struct Program;

struct SlotBackup {
  std::string former;             // where files that lay in BackupFolder before were moved
  std::vector<Failure> failures;  // when there are any, the slots must not be cleared
};

// Copies every file that clearing the folder's slots would delete into BackupFolder, reads it back
// and remembers the folder. What lies in BackupFolder before is moved away first,
// unless it is known to be in its own folder again.
SlotBackup BackUpSlots(Program& program, const std::string& game_folder);

// True when a whole backup was taken from this folder, however its path is spelled.
bool IsBackupOf(Program& program, const std::string& game_folder);

// The files that the backup should hold and that cannot be read there. An empty backup is whole.
std::vector<Failure> MissingFromBackup(Program& program);

// Copies the backup into the folder that it was taken from. Answers what did not arrive.
std::vector<Failure> CopyBackupBack(Program& program);

// At the end of a run: empties BackupFolder when each of its files is in its own folder again,
// equal and flushed. Otherwise nothing is deleted, and the next start sets the files aside.
void ReleaseBackup(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_SLOT_BACKUP_H_
