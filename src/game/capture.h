// Noticing a Print Screen picture while the game runs.
#ifndef VELLUMARK_GAME_CAPTURE_H_
#define VELLUMARK_GAME_CAPTURE_H_

namespace vellumark {

struct Program;

// A tick of the main window's timer, every 500 ms. Looks at the clipboard only while capture is
// armed and wanted and no operation is at work. A picture disarms the capture and opens the capture
// dialog; without a usable game folder it is refused, and the capture stays armed.
void OnTimer(Program& program);

// The capture dialog has closed, whichever way: empties the clipboard and arms the capture again.
void EndCapture(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_CAPTURE_H_
