// What the user has selected in the list, and what the details show of it.
#ifndef VELLUMARK_SAVEGAMES_SELECTION_STATE_H_
#define VELLUMARK_SAVEGAMES_SELECTION_STATE_H_

#include <cstdint>
#include <string>
#include <vector>

namespace vellumark {

// The selected catalogue indices in rising order, as the last refresh of the details left them.
struct Selection {
  std::vector<std::int16_t> indices;

  std::int16_t Count() const { return static_cast<std::int16_t>(indices.size()); }
};

// A savegame in the catalogue, to be found again after a scan.
struct SavegamePlace {
  std::string savegame;  // its path; empty for none
  int index = 0;         // where it was
};

struct DetailsState {
  std::string CurrentShotPath;  // the picture that the main window shows; empty for none
  SavegamePlace shown{};        // whose picture that is, or would be
  SavegamePlace viewed{};       // the same for the viewer
  bool ViewerOpen = false;      // the screen-shot viewer is loaded
};

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_SELECTION_STATE_H_
