// The first things that a run does.
#ifndef VELLUMARK_SESSION_START_UP_H_
#define VELLUMARK_SESSION_START_UP_H_

namespace vellumark {

struct Program;

// The main window has been loaded and is not shown yet: captions, start-up, the opening sound.
// ProgramFolder and the argument text must be set.
void MainWindowLoaded(Program& program);

// Finds the program's own files, reads the preferences, opens and scans the last archive and
// offers to import new savegames. Reports its problems itself and always comes to its end.
void StartUp(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_SESSION_START_UP_H_
