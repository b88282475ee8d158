// Where file dialogs for screen-shots start.
#ifndef VELLUMARK_SAVEGAMES_SHOT_DIALOG_FOLDER_H_
#define VELLUMARK_SAVEGAMES_SHOT_DIALOG_FOLDER_H_

#include <string>

namespace vellumark {

struct Program;

// The folder for screen-shots of the preferences; they may also hold the path of a picture that was
// saved there, whose folder it is then.
std::string ShotStartFolder(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_SHOT_DIALOG_FOLDER_H_
