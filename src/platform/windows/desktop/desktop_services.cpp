#include "platform/desktop_services.h"

#include <windows.h>

#include "platform/windows/desktop/windows_clipboard.h"
#include "platform/windows/desktop/windows_desktop_windows.h"
#include "platform/windows/desktop/windows_shell.h"
#include "platform/windows/desktop/windows_sound_player.h"
#include "platform/windows/wide_text.h"

namespace vellumark {

std::vector<char*> WindowArguments(int argc, char* argv[]) {
  std::vector<char*> arguments(argv, argv + argc);
  arguments.push_back(nullptr);
  return arguments;
}

// The command line behind the program's name, which may stand in quotes.
std::string ArgumentsAsTyped() {
  const std::wstring line = GetCommandLineW();
  bool quoted = false;
  std::size_t end = 0;
  while (end < line.size() && (quoted || line[end] > L' ')) {
    if (line[end] == L'"') quoted = !quoted;
    ++end;
  }
  while (end < line.size() && line[end] <= L' ') ++end;
  return FromWide(std::wstring_view(line).substr(end));
}

std::unique_ptr<Shell> MakeShell() { return std::make_unique<WindowsShell>(); }

std::unique_ptr<SoundPlayer> MakeSoundPlayer(const std::string& /*program_folder*/) {
  return std::make_unique<WindowsSoundPlayer>();
}

std::unique_ptr<DesktopWindows> MakeDesktopWindows() {
  return std::make_unique<WindowsDesktopWindows>();
}

// Without force the taskbar would only ask for the user's attention.
void BringToFront(WindowHandle own_window) { ForceToForeground(own_window); }

// Wine has bitmaps that it does not hand out in the way the windows' library asks for them.
std::string ClipboardAsBmpFile() { return BmpFileOf(ReadClipboardBitmap()); }

// The end of a session reaches the windows as messages, and a program without a console gets no
// other notice.
int CatchEndSignals() { return -1; }
bool HasEndSignal() { return false; }

}  // namespace vellumark
