// Which archived savegame a slot of the game holds.
#ifndef VELLUMARK_GAME_SLOT_CONTENTS_H_
#define VELLUMARK_GAME_SLOT_CONTENTS_H_

#include <optional>

namespace vellumark {

struct Program;

// The catalogue index of the archived savegame that the last play put into a slot, when it is still
// there: the slot's file is byte for byte what the play put there, and the file that it came from
// is still that savegame (its counter may have been edited). Nothing otherwise. Deleting and
// scanning give entries other indices than ExaminedList names, so whoever writes through it asks
// first.
std::optional<int> ExaminedEntry(Program& program, int slot);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_SLOT_CONTENTS_H_
