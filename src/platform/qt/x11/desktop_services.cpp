#include "platform/desktop_services.h"

#include <QCoreApplication>
#include <algorithm>
#include <cstdio>

#include "platform/qt/qt_shell.h"
#include "platform/qt/qt_sound_player.h"
#include "platform/x11/x11_desktop_windows.h"

namespace vellumark {

// A choice of platform for Qt comes in front. Where both X and Wayland are at hand, X comes first
// unless the user has chosen: only there can the clipboard be read while another program has the
// focus.
std::vector<char*> WindowArguments(int argc, char* argv[]) {
  static char option[] = "-platform";
  static char platforms[] = "xcb;wayland";
  std::vector<char*> arguments(argv, argv + argc);
  if (!qEnvironmentVariableIsEmpty("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    arguments.insert(arguments.begin() + std::min(argc, 1), {option, platforms});
  }
  arguments.push_back(nullptr);
  return arguments;
}

// Less those that Qt takes for itself.
std::string ArgumentsAsTyped() {
  return QCoreApplication::arguments().mid(1).join(u' ').toStdString();
}

void PrintOnTerminal(const std::string& text) { std::fputs(text.c_str(), stdout); }

std::unique_ptr<Shell> MakeShell() { return std::make_unique<QtShell>(); }

std::unique_ptr<SoundPlayer> MakeSoundPlayer(const std::string& program_folder) {
  return std::make_unique<QtSoundPlayer>(QString::fromStdString(program_folder));
}

std::unique_ptr<DesktopWindows> MakeDesktopWindows() {
  return std::make_unique<X11DesktopWindows>();
}

// Qt's own request is enough.
void BringToFront(WindowHandle /*own_window*/) {}

// Qt reads whatever an X clipboard offers.
std::string ClipboardAsBmpFile() { return {}; }

}  // namespace vellumark
