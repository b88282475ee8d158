// What lies in the folders `rescued\<n>` beside the program, and its way back.
#ifndef VELLUMARK_GAME_RESCUED_SAVEGAMES_H_
#define VELLUMARK_GAME_RESCUED_SAVEGAMES_H_

#include <cstdint>
#include <string>
#include <vector>

#include "foundation/failures.h"
#include "savegames/catalogue_state.h"

namespace vellumark {

struct Program;

// A savegame that was set aside.
struct RescuedSavegame {
  SavegameEntry entry;  // as the scan would list it, with the folder number 1
  bool has_note = false;
  bool has_shot = false;
  std::string origin;  // the path where it lay; empty where nobody has written it down
  std::string why;     // the same
};

// One folder, or a sub-folder of one.
struct RescuedFolder {
  std::string path;
  std::string when;  // as its list says it; empty where it does not
  std::vector<RescuedSavegame> savegames;
  std::vector<std::string> loose;  // paths of notes, pictures and other files without a savegame
};

// All that was set aside, by rising number; `failures` gets the folders that cannot be read.
std::vector<RescuedFolder> ListRescued(Program& program, std::vector<Failure>& failures);

// True when the archive in use has a main folder that is there and a name for its sub-folders.
bool CanArchiveRescued(Program& program);

// Puts savegames into the archive as its next sub-folder, as an import does: copied, verified,
// flushed, then deleted where they were, and written into the info file. Slot numbers that do not
// fit side by side become 0, 1, 2, ...; more than the slots of one sub-folder fill several. Tells
// how many there are now in the archive, and what failed; what did not arrive stays set aside. The
// list of the archive is not read again.
void ArchiveRescued(Program& program, const std::vector<RescuedSavegame>& savegames);

// The same for all savegames of one folder.
void ArchiveWholeRescue(Program& program, const std::string& folder);

// Puts savegames back into the game's slots with their own numbers, each only when its slot is free
// and belongs to the player at the moment; tells what was not.
void PutRescuedIntoGame(Program& program, const std::vector<RescuedSavegame>& savegames);

// Deletes files that were set aside, read-only ones too, after a question; tells what is still
// there. False when the user does not want to.
bool DeleteRescuedFiles(Program& program, const std::vector<std::string>& paths);

// Opens the folder of a file that was set aside in the user's file manager.
void ShowRescuedFolder(Program& program, const std::string& path);

// The files of a savegame that are there.
std::vector<std::string> FilesOf(const RescuedSavegame& savegame);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_RESCUED_SAVEGAMES_H_
