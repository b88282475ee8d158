// The end of a run when the system asks for it: without a question, and within a second.
#ifndef VELLUMARK_SESSION_SESSION_END_H_
#define VELLUMARK_SESSION_SESSION_END_H_

namespace vellumark {

struct Program;

// Saves a changed archive and the preferences; shows no message. An archive without a name of its
// own is saved as message 270 beside the program. For when the session may end soon: the run goes
// on. May be called whatever dialog is open.
void SaveForSessionEnd(Program& program);

// The quiet end of a run: saves as above and keeps a typed note. The player's own slots stay in the
// backup. What would have to be told is kept for the next start. May be called whatever dialog is
// open, also between two files of an operation. False when the run had come to its end before:
// nothing is done then.
bool EndSession(Program& program);

// At a start: shows what the last run's end had nobody to tell, once.
void TellWhatWasUntold(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_SESSION_SESSION_END_H_
