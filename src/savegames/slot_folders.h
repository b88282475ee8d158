// Copying and clearing all slots of a folder.
#ifndef VELLUMARK_SAVEGAMES_SLOT_FOLDERS_H_
#define VELLUMARK_SAVEGAMES_SLOT_FOLDERS_H_

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "foundation/failures.h"

namespace vellumark {

struct SlotCopies {
  std::int16_t count = 0;              // savegames tried, copied or not
  std::int16_t HighestCopiedSlot = 0;  // 0 when there was none
  std::vector<std::string> targets;    // the files that arrived and were read back equal
  std::vector<Failure> failures;       // the source files that did not
};

// Copies the slots 0 to `max_savegame` of a folder that have a savegame file, each with its note
// and screen-shot, under the same names into another folder; these stay behind where the savegame
// itself does not arrive. The sources are never changed, and nothing in the target is deleted.
// `show`, where given, is told before each slot how far it is.
SlotCopies CopySlots(FileSystem& files, const std::string& source, const std::string& target,
                     int max_savegame, const std::function<void(int done, int all)>& show = {});

// Deletes every `savegame.*`, `note*.txt` and `shot*.jpg` of a folder. Answers the files that could
// not be deleted; it goes on with the others.
std::vector<Failure> ClearSlots(FileSystem& files, const std::string& folder);

// The files that ClearSlots would delete, with their paths. `why`, where given, tells whether the
// folder could be listed; the answer is not complete when it could not.
std::vector<std::string> FilesOfSlots(FileSystem& files, const std::string& folder,
                                      FileError* why = nullptr);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_SLOT_FOLDERS_H_
