// The last things that a run does.
#ifndef VELLUMARK_SESSION_SHUT_DOWN_H_
#define VELLUMARK_SESSION_SHUT_DOWN_H_

namespace vellumark {

struct Program;

// The main window is closing: shut-down, then all dialogs are closed.
void MainWindowClosing(Program& program);

// Saves a changed archive and the preferences, gives the player's slots back and warns about a
// screen-shot that was not imported. Comes to its end whatever the user answers.
void ShutDown(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_SESSION_SHUT_DOWN_H_
