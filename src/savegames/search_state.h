// The result of the last search.
#ifndef VELLUMARK_SAVEGAMES_SEARCH_STATE_H_
#define VELLUMARK_SAVEGAMES_SEARCH_STATE_H_

#include <cstdint>
#include <vector>

namespace vellumark {

struct SearchResult {
  std::vector<std::int16_t> FoundList;  // catalogue indices, rising
  std::int16_t FoundPosition = 0;       // from 0: the one shown last

  std::int16_t FoundCount() const { return static_cast<std::int16_t>(FoundList.size()); }
};

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_SEARCH_STATE_H_
