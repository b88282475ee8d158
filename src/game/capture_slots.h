// The slots of the game as the capture dialog lists them.
#ifndef VELLUMARK_GAME_CAPTURE_SLOTS_H_
#define VELLUMARK_GAME_CAPTURE_SLOTS_H_

#include <string>

namespace vellumark {

struct Program;

// Opens the capture: nothing is chosen, the lines stand in CaptureState::slot_lines. Where exactly
// one slot has a savegame, that one is chosen, and the answer is its note in the stored form;
// otherwise the answer is empty.
std::string PrepareCapture(Program& program);

// Reads the lines again, from the game folder in use; none is chosen then.
void ReadCaptureSlots(Program& program);

// The user has chosen a line; -1 for none. An empty slot has no level name and the counter 0.
void ChooseSlot(Program& program, int line);

// True while the chosen slot holds what it held when its line was read: another savegame may have
// the same line.
bool ChosenSlotIsAsShown(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_CAPTURE_SLOTS_H_
