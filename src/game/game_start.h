// Starting the game's program, and watching whether it comes up.
#ifndef VELLUMARK_GAME_GAME_START_H_
#define VELLUMARK_GAME_GAME_START_H_

#include <string>

namespace vellumark {

struct Program;

// What a start of the game finds in its slots.
enum class GameSlots { kAsTheyWere, kFilledByPlay };

// Starts the game's program. What stands in the way is told at once: what is missing on this
// computer once a run, since that does not change, anything else every time.
void StartGameProgram(Program& program, const std::string& executable, GameSlots slots);

// To be called at every tick of the timer: follows a start for its first half minute, until the
// game's window is there or its program has ended. An end with an error is told.
void WatchGameStart(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_GAME_START_H_
