// Emptying the game folder after its slots were copied into the archive.
#ifndef VELLUMARK_GAME_SLOT_RELEASE_H_
#define VELLUMARK_GAME_SLOT_RELEASE_H_

#include <string>
#include <vector>

#include "savegames/slot_folders.h"

namespace vellumark {

struct SlotRelease {
  FileError flush = FileError::kNone;   // otherwise nothing was deleted
  std::vector<Failure> not_deleted;     // copied, but still in the game folder
  FileError rename = FileError::kNone;  // otherwise the highest slot keeps its number
  bool first_taken = false;             // likewise: a note or screen-shot of slot 0 is still there
  std::string highest_file;             // the savegame that was to become savegame.0
};

// Deletes the copied slots below the highest one from the game folder, makes the highest one
// savegame.0 and takes its note and screen-shot away. Only files whose copy in `subfolder` is equal
// at that moment are deleted, after the copies were flushed. A slot of which a file was not copied
// stays as it is.
SlotRelease ReleaseCopiedSlots(FileSystem& files, const std::string& game_folder,
                               const std::string& subfolder, const SlotCopies& copies);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_SLOT_RELEASE_H_
