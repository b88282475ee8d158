// Emptying the game's slots without losing what is in them.
#ifndef VELLUMARK_GAME_SLOT_CLEARING_H_
#define VELLUMARK_GAME_SLOT_CLEARING_H_

#include <string>
#include <vector>

#include "foundation/failures.h"

namespace vellumark {

struct Program;

struct SlotClearing {
  std::string set_aside;          // `rescued\<n>` with what had no copy; empty when there was none
  std::vector<Failure> failures;  // what is still in the folder
  bool deleted = false;           // some files are gone from the folder
};

// Clears the slots of a game folder that was backed up. A file is deleted only when it is equal to
// the backup's file of that name, or to one that a play has put there; all others were saved by the
// game meanwhile, or brought by the user, and are set aside. Nothing is deleted when that fails.
SlotClearing ClearGameSlots(Program& program, const std::string& game_folder);

// The user has put these files into a folder. When it is the game folder whose slots were backed
// up, they are his own from now on, and so are equal ones that a play has put there.
void RememberBrought(Program& program, const std::string& folder,
                     const std::vector<std::string>& paths);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_SLOT_CLEARING_H_
