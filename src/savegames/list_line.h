// The line of the list that shows a savegame, by character position.
#ifndef VELLUMARK_SAVEGAMES_LIST_LINE_H_
#define VELLUMARK_SAVEGAMES_LIST_LINE_H_

#include <string>

#include "savegames/catalogue_state.h"

namespace vellumark {

struct Program;

// Where the note begins in a line, counted from 0.
constexpr std::size_t kNoteColumn = 37;

// The line of a catalogue entry; looks whether its screen-shot exists now.
std::string FormatListLine(Program& program, int index);

// The same for a caller that knows whether the screen-shot exists. The columns never shift: a
// counter of more than four characters begins further left and may take the blank on either side,
// and a level name shows its first 29 characters.
std::string FormatEntryLine(const SavegameEntry& entry, bool has_shot);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_LIST_LINE_H_
