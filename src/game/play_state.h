// What playing archived savegames has left in the game's slots.
#ifndef VELLUMARK_GAME_PLAY_STATE_H_
#define VELLUMARK_GAME_PLAY_STATE_H_

#include <string>

namespace vellumark {

struct PlayState {
  // True from the first play of the run on: the game's slots hold archived savegames, and
  // BackupFolder holds the player's own.
  bool ExaminedInGameFolder = false;
  std::string BackupFolder;  // the folder `temp` beside the program
};

}  // namespace vellumark

#endif  // VELLUMARK_GAME_PLAY_STATE_H_
