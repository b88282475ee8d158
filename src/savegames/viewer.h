// The screen-shot viewer: what it shows, and its way through the catalogue.
#ifndef VELLUMARK_SAVEGAMES_VIEWER_H_
#define VELLUMARK_SAVEGAMES_VIEWER_H_

namespace vellumark {

struct Program;

// Opens the viewer on the picture that is current when it is asked for.
void ShowScreenShot(Program& program);

// Lets the viewer show the next savegame with a screen-shot, in the order of the catalogue. What
// the main window shows and what is selected stays. At either end it only sounds. The savegame that
// the viewer shows is found again by its path; when it is gone, by where it was.
void ShowNextScreenShot(Program& program);
void ShowPreviousScreenShot(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_VIEWER_H_
