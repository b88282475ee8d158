// The installed games that this run has found.
#ifndef VELLUMARK_ARCHIVE_GAME_SEARCH_STATE_H_
#define VELLUMARK_ARCHIVE_GAME_SEARCH_STATE_H_

#include <cstdint>
#include <string>
#include <vector>

namespace vellumark {

struct FoundGame {
  std::string folder;
  std::string executable;         // full path
  std::int16_t max_savegame = 0;  // the highest slot number that its folder speaks for
};

struct GameSearchState {
  std::vector<FoundGame> games;  // empty until the search has ended
};

}  // namespace vellumark

#endif  // VELLUMARK_ARCHIVE_GAME_SEARCH_STATE_H_
