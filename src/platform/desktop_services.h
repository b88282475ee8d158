// The services of the desktop that the program was built for.
#ifndef VELLUMARK_PLATFORM_DESKTOP_SERVICES_H_
#define VELLUMARK_PLATFORM_DESKTOP_SERVICES_H_

#include <memory>
#include <string>
#include <vector>

#include "platform/desktop_windows.h"
#include "platform/shell.h"
#include "platform/sound_player.h"

namespace vellumark {

// The program's arguments for the windows' library, a null at the end. They refer to `argv`.
std::vector<char*> WindowArguments(int argc, char* argv[]);

// All arguments of the program as one text, UTF-8; where the system hands them over as one, just as
// typed. To be called while there is an application.
std::string ArgumentsAsTyped();

// Writes a text to where the program's output goes: a file, another program, or the terminal that
// it was started from. Without any of these nothing happens.
void PrintOnTerminal(const std::string& text);

std::unique_ptr<Shell> MakeShell();

// `program_folder` is the executable's, a host path, UTF-8.
std::unique_ptr<SoundPlayer> MakeSoundPlayer(const std::string& program_folder);

std::unique_ptr<DesktopWindows> MakeDesktopWindows();

// Brings one of the program's own windows to the front while another program is there, where the
// windows' library does not. A failure changes nothing.
void BringToFront(WindowHandle own_window);

// The clipboard's picture in the system's own form, as the bytes of a BMP file; for when the
// windows' library gets none. Empty where there is none.
std::string ClipboardAsBmpFile();

// Where the system asks a program to end by signals: from now on they do not end it by themselves.
// Answers a descriptor that becomes readable with the first one; -1 where there is none.
int CatchEndSignals();

// True from that first signal on, at any moment.
bool HasEndSignal();

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_DESKTOP_SERVICES_H_
