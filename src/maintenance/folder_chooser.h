// What the folder chooser starts with and what its controls do. FolderChooserMode decides what the
// folder is wanted for. Folders are written as in maintenance/folder_lines.h.
#ifndef VELLUMARK_MAINTENANCE_FOLDER_CHOOSER_H_
#define VELLUMARK_MAINTENANCE_FOLDER_CHOOSER_H_

#include <optional>
#include <string>

#include "maintenance/folder_lines.h"
#include "platform/text.h"

namespace vellumark {

struct Program;

struct ChooserOpening {
  int title = 0;           // a message
  bool shows_path = true;  // false: the path line stays empty until the folder changes
  FolderLines folder;
};

// What the chooser shows first; Confirmed becomes false. A start folder that cannot be listed gives
// way to the current folder. Every mode but the plain one opens with a sound.
ChooserOpening OpenChooser(Program& program);

// Goes to a folder, or reads it again. Empty, after telling the user why, when it cannot be read.
std::optional<FolderLines> EnterFolder(Program& program, const std::string& folder);

// The same for a folder as the user types or pastes it, in the system's own form too.
std::optional<FolderLines> EnterTypedFolder(Program& program, const EncodedText& typed);

// Goes to another drive: to the current folder when that is there, else to the root. When the drive
// cannot be read the user is told, and the answer is `folder`, read again.
FolderLines ChangeDrive(Program& program, char letter, const std::string& folder);

// Makes a folder inside `folder` and answers its path. Empty, after telling the user why, when it
// could not be made; nothing has changed then.
std::optional<std::string> CreateSubfolder(Program& program, const std::string& folder,
                                           const EncodedText& name);

// OK: stores the folder as ChosenFolder and does what it is wanted for. False when the chooser is
// to stay open: the folder cannot be taken, which the user was told, or the user cancels the copy
// or move before it begins; nothing but ChosenFolder has changed then.
bool TakeFolder(Program& program, const std::string& folder);

// What choosing a game folder for the archive's properties does at once: the player's own savegames
// are put back when it is another one.
void TakeGameFolder(Program& program, const std::string& folder);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_FOLDER_CHOOSER_H_
