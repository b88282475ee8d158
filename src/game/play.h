// Playing archived savegames in the game.
#ifndef VELLUMARK_GAME_PLAY_H_
#define VELLUMARK_GAME_PLAY_H_

namespace vellumark {

struct Program;

// The command: puts the player's own slots aside (on the first play of the run, or in another game
// folder), puts the selected savegames into the game's slots in their order and brings up the game.
// Every refusal comes before a file is touched. The slots are cleared only when everything in them
// is safe; what the game saved meanwhile is set aside. What fails is told, and a play that stopped
// half way offers the restore.
void PlaySelectedSavegames(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_PLAY_H_
