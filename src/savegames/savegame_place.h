// Where a savegame lies, for other programs.
#ifndef VELLUMARK_SAVEGAMES_SAVEGAME_PLACE_H_
#define VELLUMARK_SAVEGAMES_SAVEGAME_PLACE_H_

namespace vellumark {

struct Program;

// Shows the first selected savegame in the user's file manager.
void ShowInFileManager(Program& program);

// Puts the paths of the selected savegames on the clipboard, one a line, as other programs of this
// system take them.
void CopyPaths(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_SAVEGAME_PLACE_H_
