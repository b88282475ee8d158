// Puts the platform, the state and the windows together.
#include <QApplication>
#include <QIcon>
#include <QPixmap>
#include <QTimer>
#include <chrono>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "foundation/talk.h"
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
#include "ui/principale.h"

namespace {

using namespace vellumark;

// The longest program folder whose own files' paths still fit everywhere.
constexpr std::size_t kLongestProgramFolder = 200;

std::optional<std::string> FindProgramFolder(FileSystem& files) {
  auto folder = files.FromHostPath(QCoreApplication::applicationDirPath().toStdString());
  if (folder && folder->size() > kLongestProgramFolder) return std::nullopt;
  return folder;
}

// The arguments as one text.
std::string ArgumentText(const Text& text, MessageBoxes& boxes) {
  const EncodedText encoded = text.FromUtf8(ArgumentsAsTyped());
  if (encoded.missing.empty()) return encoded.bytes;
  boxes.Show(LoadMessage(kPathNotExpressible), BoxButtons::kOk, BoxIcon::kCritical);
  return {};
}

void SetIcon(FileSystem& files, const std::string& program_folder) {
  const ReadResult read =
      files.Read(InFolder(program_folder, "vellumark.png"), FileSystem::kWholeFile);
  QPixmap picture;
  picture.loadFromData(reinterpret_cast<const uchar*>(read.bytes.data()),
                       static_cast<uint>(read.bytes.size()));
  if (!picture.isNull()) QApplication::setWindowIcon(picture);
}

}  // namespace

int main(int argc, char* argv[]) {
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

  const auto program_folder = FindProgramFolder(*files);
  if (!program_folder) {
    boxes.Show(LoadMessage(kProgramFolderUnusable, {kLineBreak}), BoxButtons::kOk,
               BoxIcon::kCritical);
    return 1;
  }
  const LockResult lock = files->LockFolder(*program_folder);
  if (lock.answer == LockAnswer::kHeldByAnother) {
    SetIcon(*files, *program_folder);
    boxes.Show(LoadMessage(kAlreadyRunning, {Quoted(*program_folder)}), BoxButtons::kOk,
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
  program.paths.ProgramFolder = *program_folder;
  program.argument_text = ArgumentText(*text, boxes);
  window.Attach(program);
  QObject::connect(&window, &Principale::Closed, &application, &QCoreApplication::quit,
                   Qt::QueuedConnection);

  const SessionEndWatch session_end({.save = [&program] { SaveForSessionEnd(program); },
                                     .end = [&program] { return EndSession(program); }});
  // The boxes of the start have the icon too, and the window need not wait for it.
  constexpr auto kIconDelay = std::chrono::milliseconds(100);
  QTimer icon_delay;
  icon_delay.setSingleShot(true);
  QObject::connect(&icon_delay, &QTimer::timeout, &window,
                   [&] { SetIcon(*files, *program_folder); });
  icon_delay.start(kIconDelay);
  MainWindowLoaded(program);
  window.show();
  if (icon_delay.isActive()) icon_delay.start(kIconDelay);
  return QApplication::exec();
}
