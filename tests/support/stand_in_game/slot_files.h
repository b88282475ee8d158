// The game's savegame files, as far as their layout matters to anyone else.
#ifndef VELLUMARK_TESTS_SUPPORT_STAND_IN_GAME_SLOT_FILES_H_
#define VELLUMARK_TESTS_SUPPORT_STAND_IN_GAME_SLOT_FILES_H_

#include <string>

namespace vellumark::stand_in {

// The counter and the level name of a savegame file.
std::string DescribeSlot(const std::string& name);

// Writes savegame.<slot> in the working folder in place, as a saving game does. False when it
// cannot be written.
bool WriteSlot(int slot, int counter, const std::string& level);

}  // namespace vellumark::stand_in

#endif  // VELLUMARK_TESTS_SUPPORT_STAND_IN_GAME_SLOT_FILES_H_
