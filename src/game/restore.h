// Giving the player's own slots back after archived savegames were played.
#ifndef VELLUMARK_GAME_RESTORE_H_
#define VELLUMARK_GAME_RESTORE_H_

namespace vellumark {

struct Program;

// Asks whether the player's own slots shall come back, when a play has put others into the game's.
// Yes: what the game saved meanwhile is set aside, the slots of the folder that the backup was
// taken from are cleared and the backup is copied back. Nothing is cleared unless the backup is
// whole. The backup stays, and a later call asks again.
void RestoreOriginalSavegames(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_RESTORE_H_
