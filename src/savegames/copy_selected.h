// Putting copies of selected savegames side by side into one folder.
#ifndef VELLUMARK_SAVEGAMES_COPY_SELECTED_H_
#define VELLUMARK_SAVEGAMES_COPY_SELECTED_H_

#include <cstdint>
#include <string>
#include <vector>

#include "foundation/failures.h"
#include "savegames/savegame_files.h"

namespace vellumark {

struct Program;

enum class CopyMode { kCopy, kMove };

struct SelectedCopies {
  std::vector<std::string> targets;    // the files that arrived and were read back equal
  std::vector<Failure> not_copied;     // the side on which a copy failed
  std::vector<Failure> not_deleted;    // a move: copied, but still where they were
  std::vector<std::string> set_aside;  // files of `folder` whose names the copies have taken
  std::string rescue_folder;           // where they are now
};

// Copies the savegames of these catalogue indices, each with its note and screen-shot, into
// `folder`: under their own slot numbers, or, with `renumber`, under 0, 1, 2, ... in that order;
// when the folder held a savegame file before, each takes the lowest number that is free then. A
// move deletes a savegame's files after its copies were read back equal and flushed; a savegame
// that was not copied whole stays whole. Other files that have a copy's name are set aside first;
// where that fails the copy is left out.
SelectedCopies CopySelectedSavegames(Program& program, const std::vector<std::int16_t>& indices,
                                     const std::string& folder, bool renumber, CopyMode mode);

// The same for savegames whose files were remembered before.
SelectedCopies CopySavegames(Program& program, const std::vector<SavegameFiles>& savegames,
                             const std::string& folder, bool renumber, CopyMode mode);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_COPY_SELECTED_H_
