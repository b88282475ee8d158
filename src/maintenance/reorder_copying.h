// Building the new archive from the old one's savegames.
#ifndef VELLUMARK_MAINTENANCE_REORDER_COPYING_H_
#define VELLUMARK_MAINTENANCE_REORDER_COPYING_H_

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "foundation/failures.h"
#include "maintenance/reorder_settings.h"

namespace vellumark {

// Shows how far a run has come, in percent. It must not let anything else run meanwhile.
using ShowPercent = std::function<void(int percent)>;

// What a run has done with a savegame of the catalogue.
struct SavegameFate {
  enum class Kind { kLeft, kDropped, kCopied };

  Kind kind = Kind::kLeft;
  // Where its copy lies; of one that was dropped, the copy of its equal.
  std::size_t folder = 0;  // in NewArchive::folders
  int slot = 0;
};

struct NewArchive {
  std::vector<std::string> folders;  // the sub-folders that were made
  std::vector<SavegameFate> fates;   // for each entry of the catalogue
  int copied = 0;                    // savegames tried, copied or not
  int equals = 0;                    // savegames dropped because the new archive has an equal one
  std::vector<Failure> not_copied;   // source files whose copy did not arrive
  std::vector<Failure> not_listed;   // info files that could not be written
  std::vector<std::string> written;  // what arrived and was read back equal
  std::optional<Failure> stopped;    // the sub-folder that could not be made: the run ended there
};

// Copies the archived savegames of the catalogue, in the order of these indices, into new
// sub-folders. With RemoveEquals one is dropped when a savegame of its level name and counter has
// arrived in the new archive before. Savegames of the game folder are never copied. The sources
// stay as they are.
NewArchive CopyInOrder(Program& program, const ReorderSettings& settings,
                       const ReorderTarget& target, const std::vector<std::size_t>& order,
                       const ShowPercent& show);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_REORDER_COPYING_H_
