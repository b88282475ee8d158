// Noticing a Print Screen picture while the game runs.
#ifndef VELLUMARK_GAME_CAPTURE_H_
#define VELLUMARK_GAME_CAPTURE_H_

namespace vellumark {

struct Program;

// A tick of the main window's timer, every 500 ms. Looks at the clipboard only while capture is
// armed and wanted and no operation is at work. Starting the game is what arms capture; as long as
// no command does, a tick has nothing to do.
void OnTimer(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_CAPTURE_H_
