// What the folder chooser is asked for, and what it answered.
#ifndef VELLUMARK_MAINTENANCE_FOLDER_CHOOSER_STATE_H_
#define VELLUMARK_MAINTENANCE_FOLDER_CHOOSER_STATE_H_

#include <cstdint>
#include <string>
#include <vector>

#include "savegames/catalogue_state.h"

namespace vellumark {

// The values of FolderChooserMode.
enum class ChooserMode : std::int16_t {
  kPlain = 0,
  kMainFolder = 1,
  kGameFolder = 2,
  kCopy = 4,
  kMove = 5,
  kNewArchiveFolder = 6,
  kExportShots = 7,
};

struct FolderChooserState {
  ChooserMode FolderChooserMode = ChooserMode::kPlain;  // set by the opener, never reset
  std::string ChosenFolder;  // the folder of the last OK; a drive's root is `X:` alone
  bool Confirmed = false;    // the last answer

  // The text of the opener's field that the chooser fills: the archive properties dialog's main
  // folder or game folder, where it also starts, or the reorder dialog's main folder.
  std::string field;

  // The savegames to copy or move, as they were selected when the command started.
  std::vector<SavegameFiles> savegames;
};

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_FOLDER_CHOOSER_STATE_H_
