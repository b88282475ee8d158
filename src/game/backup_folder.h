// The folder `temp` beside the program, where the player's own slots wait while archived savegames
// are played.
#ifndef VELLUMARK_GAME_BACKUP_FOLDER_H_
#define VELLUMARK_GAME_BACKUP_FOLDER_H_

namespace vellumark {

struct Program;

// Sets BackupFolder and makes the folder when it is missing. The user is told when there is none
// that can be used.
void PrepareBackupFolder(Program& program);

// Empties BackupFolder of what an earlier run left there, and forgets whose it was: slot files are
// set aside, which the user is told; those that cannot be moved stay, and nothing is deleted.
void SetBackupAside(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_BACKUP_FOLDER_H_
