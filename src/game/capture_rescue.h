// Keeping a note that was typed but not linked when the program ends.
#ifndef VELLUMARK_GAME_CAPTURE_RESCUE_H_
#define VELLUMARK_GAME_CAPTURE_RESCUE_H_

#include <string>

namespace vellumark {

struct Program;

// Writes the note that stands in the open capture dialog, together with the picture, into a new
// folder `rescued\<n>` beside the program. Answers what to tell the user, a failure included; empty
// when no note was typed.
std::string SetTypedNoteAside(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_CAPTURE_RESCUE_H_
