// The line of the list that shows a savegame, by character position.
#ifndef VELLUMARK_SAVEGAMES_LIST_LINE_H_
#define VELLUMARK_SAVEGAMES_LIST_LINE_H_

#include <string>

#include "savegames/catalogue_state.h"

namespace vellumark {

struct Program;

// Where the level name and the note begin in a line, counted from 0.
constexpr std::size_t kLevelColumn = 8;
constexpr std::size_t kNoteColumn = 37;

// What a line has in this column when the savegame has a screen-shot.
constexpr std::size_t kShotColumn = 1;

// A line has room for no more of a note: more could not be seen, and would be carried and measured
// all the same.
constexpr std::size_t kNoteInLine = 1000;

// The names of the columns, as a line that stands over the others.
std::string FormatListHeading();

// The line of a catalogue entry; looks whether its screen-shot exists now.
std::string FormatListLine(Program& program, int index);

// The same for a caller that knows whether the screen-shot exists. The columns never shift: a
// counter of more than four characters begins further left and may take the blank on either side,
// and a level name shows its first 29 characters. Three dots stand for the rest of a note that has
// no room.
std::string FormatEntryLine(const SavegameEntry& entry, bool has_shot);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_LIST_LINE_H_
