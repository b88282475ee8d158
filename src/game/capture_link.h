// Linking a captured screen-shot to a slot of the game.
#ifndef VELLUMARK_GAME_CAPTURE_LINK_H_
#define VELLUMARK_GAME_CAPTURE_LINK_H_

#include "savegames/typed_note.h"

namespace vellumark {

struct Program;

enum class LinkAnswer {
  kRefused,         // the user was told why; nothing has been written
  kSlotsChanged,    // the same, and the lines have been read again
  kNoteRefused,     // the same, for characters that a note cannot hold
  kNoteNotWritten,  // all but the note is done, and told: the dialog must keep it
  kLinked,          // the game is in front again; failures were told
};

// The dialog's OK: writes the picture and the note, unless it is blank, for the chosen slot into
// the game folder, and for the archived savegame that a play has put there into the archive, and
// brings the list and the details in step.
LinkAnswer LinkCapture(Program& program, const TypedNote& note);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_CAPTURE_LINK_H_
