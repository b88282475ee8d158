// Puts the platform, the state and the windows together.
#include <QApplication>
#include <QIcon>
#include <QPixmap>
#include <QStandardPaths>
#include <QTimer>
#include <chrono>
#include <memory>
#include <thread>
#include <vector>

#include "foundation/about.h"
#include "foundation/companion_files.h"
#include "foundation/failures.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/program_places.h"
#include "foundation/strings.h"
#include "platform/desktop_services.h"
#include "platform/qt/qt_clipboard.h"
#include "platform/qt/qt_file_dialogs.h"
#include "platform/qt/qt_message_boxes.h"
#include "platform/qt/session_end_watch.h"
#include "platform/system_services.h"
#include "program.h"
#include "session/session_end.h"
#include "session/start_up.h"
#include "ui/fonts.h"
#include "ui/game_search.h"
#include "ui/principale.h"

namespace {

using namespace vellumark;

ProgramPlaces FindPlaces(FileSystem& files, bool portable) {
  const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
  return FindProgramPlaces(
      files, {.executable_folder =
                  files.FromHostPath(QCoreApplication::applicationDirPath().toStdString()),
              .user_folder = files.FromHostPath((data + "/vellumark").toStdString()),
              .portable = portable});
}

// Why there is no program folder.
void TellProblem(const ProgramPlaces& places, MessageBoxes& boxes) {
  std::string text = LoadMessage(kProgramFolderUnusable, {kLineBreak});
  if (places.problem == ProgramPlaces::Problem::kNotMade) {
    text = LoadMessage(kUserFolderNotMade,
                       {Quoted(places.paths.ProgramFolder), ReasonFor(places.error)});
  } else if (places.users_own) {
    text = LoadMessage(kUserFolderUnusable, {kLineBreak});
  }
  boxes.Show(text, BoxButtons::kOk, BoxIcon::kCritical);
}

// The arguments as one text.
std::string ArgumentText(const Text& text, MessageBoxes& boxes) {
  const EncodedText encoded = text.FromUtf8(ArgumentsAsTyped());
  if (encoded.missing.empty()) return encoded.bytes;
  boxes.Show(LoadMessage(kPathNotExpressible), BoxButtons::kOk, BoxIcon::kCritical);
  return {};
}

void SetIcon(FileSystem& files, const ProgramPaths& paths) {
  const ReadResult read =
      files.Read(CompanionFile(files, paths, "\\vellumark.png"), FileSystem::kWholeFile);
  QPixmap picture;
  picture.loadFromData(reinterpret_cast<const uchar*>(read.bytes.data()),
                       static_cast<uint>(read.bytes.size()));
  if (!picture.isNull()) QApplication::setWindowIcon(picture);
}

}  // namespace

int main(int argc, char* argv[]) {
  // Asked on a terminal: needs no display, and leaves everything as it is.
  if (argc == 2) {
    if (const auto answer = TerminalAnswer(argv[1])) {
      PrintOnTerminal(*answer);
      return 0;
    }
  }
  const std::jthread reading_ahead(ReadAheadForFirstWindow);
  std::vector<char*> arguments = WindowArguments(argc, argv);
  argc = static_cast<int>(arguments.size()) - 1;
  NameFontSubstitutes();
  QApplication application(argc, arguments.data());
  QApplication::setApplicationName(QStringLiteral("Vellumark"));
  QApplication::setDesktopFileName(QStringLiteral("vellumark"));
  QApplication::setQuitOnLastWindowClosed(false);

  const std::unique_ptr<Text> text = MakeSystemText();
  const std::unique_ptr<FileSystem> files = MakeSystemFileSystem(*text);
  QtMessageBoxes boxes(*text);

  const CommandLine command_line = ReadCommandLine(ArgumentText(*text, boxes));
  const ProgramPlaces places = FindPlaces(*files, command_line.portable);
  if (places.problem != ProgramPlaces::Problem::kNone) {
    TellProblem(places, boxes);
    return 1;
  }
  const ProgramPaths& paths = places.paths;
  const LockResult lock = files->LockFolder(paths.ProgramFolder);
  if (lock.answer == LockAnswer::kHeldByAnother) {
    SetIcon(*files, paths);
    boxes.Show(LoadMessage(kAlreadyRunning, {Quoted(paths.ProgramFolder)}), BoxButtons::kOk,
               BoxIcon::kCritical);
    return 1;
  }

  QtFileDialogs file_dialogs(*files, *text, boxes, LoadMessage(kPathNotExpressible));
  const auto sounds = MakeSoundPlayer(QCoreApplication::applicationDirPath().toStdString());
  const auto shell = MakeShell();
  const auto desktop = MakeDesktopWindows();
  QtClipboard clipboard;
  Principale window(*files, *text);
  Program program{.files = *files,
                  .text = *text,
                  .boxes = boxes,
                  .file_dialogs = file_dialogs,
                  .sounds = *sounds,
                  .shell = *shell,
                  .desktop = *desktop,
                  .clipboard = clipboard,
                  .windows = window,
                  .main_window = window};
  program.paths = paths;
  program.argument_text = command_line.path;
  window.Attach(program);
  QObject::connect(&window, &Principale::Closed, &application, &QCoreApplication::quit,
                   Qt::QueuedConnection);

  const SessionEndWatch session_end({.save = [&program] { SaveForSessionEnd(program); },
                                     .end =
                                         [&program, &window] {
                                           const bool ends = EndSession(program);
                                           if (ends) window.Remember();
                                           return ends;
                                         }});
  // The boxes of the start have the icon too, and the window need not wait for it.
  constexpr auto kIconDelay = std::chrono::milliseconds(100);
  QTimer icon_delay;
  icon_delay.setSingleShot(true);
  QObject::connect(&icon_delay, &QTimer::timeout, &window, [&] { SetIcon(*files, paths); });
  icon_delay.start(kIconDelay);
  MainWindowLoaded(program);
  window.show();
  if (icon_delay.isActive()) icon_delay.start(kIconDelay);
  const GameSearch game_search(program);
  QObject::connect(&game_search, &GameSearch::Found, &window, &Principale::RefreshPage);
  return QApplication::exec();
}
