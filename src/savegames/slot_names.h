// The names of the three files of a slot. Slot numbers are 0 to MaxSavegame.
#ifndef VELLUMARK_SAVEGAMES_SLOT_NAMES_H_
#define VELLUMARK_SAVEGAMES_SLOT_NAMES_H_

#include <string>

namespace vellumark {

std::string SavegameFileName(int slot);  // savegame.3
std::string NoteFileName(int slot);      // note3.txt
std::string ShotFileName(int slot);      // shot3.jpg

}  // namespace vellumark

#endif  // VELLUMARK_SAVEGAMES_SLOT_NAMES_H_
