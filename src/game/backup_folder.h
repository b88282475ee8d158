// The folder `temp` beside the program, where the player's own slots wait while archived savegames
// are played.
#ifndef VELLUMARK_GAME_BACKUP_FOLDER_H_
#define VELLUMARK_GAME_BACKUP_FOLDER_H_

namespace vellumark {

struct Program;

// Sets BackupFolder, makes the folder when it is missing and empties it. Slot files that an earlier
// run left there are set aside first; those that cannot be moved stay, and nothing is deleted then.
void PrepareBackupFolder(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_BACKUP_FOLDER_H_
