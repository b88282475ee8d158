// Giving the player's own slots back after archived savegames were played.
#ifndef VELLUMARK_GAME_RESTORE_H_
#define VELLUMARK_GAME_RESTORE_H_

namespace vellumark {

struct Program;

// Nothing to give back unless archived savegames are in the game's slots. It works on the game
// folder that the settings name at the moment of the call.
void RestoreOriginalSavegames(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_RESTORE_H_
