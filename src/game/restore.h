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

// The start: a run that ended while archived savegames were in the game's slots has left a whole,
// labelled backup. Asks whether to put it back, as a restore does. What is not put back is set
// aside. To be called when the settings of the archive are known and before anything is scanned.
void OfferBackupOfEndedRun(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_RESTORE_H_
