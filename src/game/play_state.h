// What playing archived savegames has left in the game's slots.
#ifndef VELLUMARK_GAME_PLAY_STATE_H_
#define VELLUMARK_GAME_PLAY_STATE_H_

#include <cstdint>
#include <string>
#include <vector>

#include "platform/desktop_windows.h"

namespace vellumark {

// A file that a play put into the game folder, as it was then.
struct PlacedFile {
  std::string name;
  std::string bytes;
};

// A start of the game that is being watched.
struct StartWatch {
  std::string executable{};
  bool slots_filled = false;  // by the play that started it
  int ticks_left = 0;         // of the timer; 0 when no start is watched
};

struct PlayState {
  // True from the first play of the run on: the game's slots hold archived savegames, and
  // BackupFolder holds the player's own.
  bool ExaminedInGameFolder = false;
  std::string BackupFolder;  // the folder `temp` beside the program

  // The catalogue indices of the last play's savegames at that time; entry k went into slot k.
  // Slots and catalogue may have changed since: ask ExaminedEntry (game/slot_contents.h).
  std::vector<std::int16_t> ExaminedList;
  std::int16_t ExaminedCount() const { return static_cast<std::int16_t>(ExaminedList.size()); }
  std::vector<std::string> examined_paths;  // the savegame files that they came from
  std::vector<PlacedFile> placed;           // all files that plays have put into `backup_of`
  std::vector<std::string> brought;         // names of what the user has put there since

  std::string backup_of;               // the game folder that the backup was taken from
  bool backup_whole = false;           // all of that folder's slots arrived in the backup
  std::vector<std::string> backed_up;  // the names of the files that the backup should hold
  bool given_back = false;             // the backup has been copied back since the last play
  bool declined = false;               // the player did not want it back since the last play

  std::vector<TopLevelWindow> WindowList;  // of the last lookup, titles in the code page
  StartWatch start_watch;
  std::string told_not_started;  // what this computer lacks to start the game, as the user was told
};

}  // namespace vellumark

#endif  // VELLUMARK_GAME_PLAY_STATE_H_
