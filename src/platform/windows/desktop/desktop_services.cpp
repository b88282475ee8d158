#include "platform/desktop_services.h"

#include <windows.h>

#include <algorithm>

#include "platform/windows/desktop/windows_clipboard.h"
#include "platform/windows/desktop/windows_desktop_windows.h"
#include "platform/windows/desktop/windows_shell.h"
#include "platform/windows/desktop/windows_sound_player.h"
#include "platform/windows/wide_text.h"

namespace vellumark {
namespace {

// True where the user has chosen dark windows.
bool SystemIsDark() {
  DWORD light = 1;
  DWORD size = sizeof(light);
  RegGetValueW(HKEY_CURRENT_USER,
               L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
               L"AppsUseLightTheme", RRF_RT_REG_DWORD, nullptr, &light, &size);
  return light == 0;
}

}  // namespace

// The title bar follows the system by itself. The rest can be dark in a style of Qt's own only: the
// system's has no dark form for programs such as this one.
std::vector<char*> WindowArguments(int argc, char* argv[]) {
  static char platform_option[] = "-platform";
  static char dark_platform[] = "windows:darkmode=2";
  static char style_option[] = "-style";
  static char dark_style[] = "fusion";
  std::vector<char*> arguments(argv, argv + argc);
  if (SystemIsDark()) {
    arguments.insert(arguments.begin() + std::min(argc, 1),
                     {platform_option, dark_platform, style_option, dark_style});
  }
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

// A program with windows has no console of its own, and the one that it was started from only when
// it asks for it; an output that was redirected is there from the start.
void PrintOnTerminal(const std::string& text) {
  HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  if (GetFileType(output) == FILE_TYPE_UNKNOWN) {
    if (AttachConsole(ATTACH_PARENT_PROCESS) == FALSE) return;
    output = CreateFileW(L"CONOUT$", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_WRITE, nullptr,
                         OPEN_EXISTING, 0, nullptr);
  }
  DWORD written = 0;
  WriteFile(output, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
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
