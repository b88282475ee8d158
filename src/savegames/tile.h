// What the archive's pictures say of a savegame, and the levels by which they are grouped.
#ifndef VELLUMARK_SAVEGAMES_TILE_H_
#define VELLUMARK_SAVEGAMES_TILE_H_

#include <string>
#include <vector>

#include "savegames/catalogue_state.h"

namespace vellumark {

// The level's name as a heading; a savegame without one has words for that.
std::string LevelHeading(const SavegameEntry& entry);

// The first lines of the note, carriage return between them, and dots where it goes on. Empty
// without a note.
std::string NoteInTip(const SavegameEntry& entry);

// What a screen reader says of the savegame.
std::string SpokenTile(const SavegameEntry& entry, bool has_shot);

// Savegames of one level that follow each other.
struct LevelRun {
  std::size_t first = 0;  // catalogue index
  std::size_t count = 0;
};
std::vector<LevelRun> LevelRuns(const Catalogue& catalogue);

// A level with all its savegames, wherever they stand.
struct Level {
  std::string heading;
  int first = 0;  // catalogue index
  int count = 0;
};

// The levels in the order in which the archive reaches them.
std::vector<Level> LevelsOf(const Catalogue& catalogue);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_TILE_H_
