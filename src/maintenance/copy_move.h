// The commands Copy and Move.
#ifndef VELLUMARK_MAINTENANCE_COPY_MOVE_H_
#define VELLUMARK_MAINTENANCE_COPY_MOVE_H_

#include <string>
#include <vector>

#include "savegames/copy_selected.h"

namespace vellumark {

struct Program;

// Lets the user choose a folder for the selected savegames; the chooser's OK does the rest.
void CopySelection(Program& program);
void MoveSelection(Program& program);

// Copies or moves the savegames of the folder chooser's state into a folder, after asking whether
// to renumber them and what becomes of the savegames there. False when the user cancels on the
// first question; nothing has changed then.
bool CopyOrMoveInto(Program& program, const std::string& folder, CopyMode mode);

// True when two of the savegames have the same slot number.
bool SelectionHasSameSlot(const std::vector<SavegameFiles>& savegames);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_COPY_MOVE_H_
