// Finding the running game and bringing it to the front.
#ifndef VELLUMARK_GAME_RUNNING_GAME_H_
#define VELLUMARK_GAME_RUNNING_GAME_H_

#include <string>

#include "game/game_start.h"
#include "platform/desktop_windows.h"

namespace vellumark {

struct Program;

// Rebuilds WindowList: every top-level window that has a title, the title cut to 255 characters.
void ListTopLevelWindows(Program& program);

// The first window whose title equals the given one (or contains it, with `partial`), without
// regard to case; `title` then becomes the window's full title. 0 when there is none.
WindowHandle FindWindowByTitle(Program& program, std::string& title, bool partial);

// Brings the running game to the front and sends it the Enter key. True when no launch is needed:
// the game was running, or the configured executable is not the game's. False: launch it.
bool ActivateRunningGame(Program& program);

// Brings the running game to the front or starts it.
void BringUpGame(Program& program, GameSlots slots);

// The button "Start Tomb Raider": arms the capture and brings up the game; touches no slot.
void StartGame(Program& program);

// False when bringing up the game would start a program that the user does not let start.
bool MayBringUpGame(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_RUNNING_GAME_H_
