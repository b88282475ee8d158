#include "savegames/slot_names.h"

#include "foundation/messages.h"

namespace vellumark {

std::string SavegameFileName(int slot) { return LoadMessage(305) + std::to_string(slot); }

std::string NoteFileName(int slot) { return LoadMessage(306, {slot}); }

std::string ShotFileName(int slot) { return LoadMessage(307, {slot}); }

}  // namespace vellumark
