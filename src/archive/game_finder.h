// Finding the installed game.
#ifndef VELLUMARK_ARCHIVE_GAME_FINDER_H_
#define VELLUMARK_ARCHIVE_GAME_FINDER_H_

#include <chrono>
#include <cstdint>
#include <string>
#include <vector>

#include "archive/game_search_state.h"
#include "platform/game_places.h"

namespace vellumark {

class FileSystem;
class Text;

// The folders among these places that hold the game's program, each once. Begins no look at the
// disk after `limit`. For a thread of its own, with a file system of its own.
std::vector<FoundGame> FindGames(FileSystem& files, const Text& text, const GamePlaces& places,
                                 std::chrono::milliseconds limit);

// The highest slot number that a game folder's savegames speak for. The game has 15 slots or, in
// some editions, 10: when just those are all in use it is 10, and more when there are more.
std::int16_t HighestSlotIn(FileSystem& files, const std::string& folder);

}  // namespace vellumark

#endif  // VELLUMARK_ARCHIVE_GAME_FINDER_H_
