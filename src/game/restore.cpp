#include "game/restore.h"

#include "program.h"

namespace vellumark {

void RestoreOriginalSavegames(Program& program) {
  // Only a play sets the flag, and no command plays yet: the slots are always the player's own.
  if (!program.play.ExaminedInGameFolder) return;
}

}  // namespace vellumark
