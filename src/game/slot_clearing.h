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
// game meanwhile and are set aside. Nothing is deleted when that fails.
SlotClearing ClearGameSlots(Program& program, const std::string& game_folder);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_SLOT_CLEARING_H_
