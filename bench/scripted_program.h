// A program on the real file system whose windows and services are scripted: they answer no
// question by themselves and open nothing.
#ifndef VELLUMARK_BENCH_SCRIPTED_PROGRAM_H_
#define VELLUMARK_BENCH_SCRIPTED_PROGRAM_H_

#include <memory>

#include "platform/system_services.h"
#include "program.h"
#include "support/scripted_desktop.h"

namespace vellumark::bench {

struct ScriptedProgram {
  std::unique_ptr<Text> text = MakeSystemText();
  std::unique_ptr<FileSystem> files = MakeSystemFileSystem(*text);
  vellumark::testing::ScriptedMessageBoxes boxes;
  vellumark::testing::ScriptedFileDialogs dialogs;
  vellumark::testing::RecordedSounds sounds;
  vellumark::testing::RecordedShell shell;
  vellumark::testing::ScriptedDesktopWindows desktop;
  vellumark::testing::ScriptedClipboard clipboard;
  vellumark::testing::ScriptedWindows windows;
  Program program{.files = *files,
                  .text = *text,
                  .boxes = boxes,
                  .file_dialogs = dialogs,
                  .sounds = sounds,
                  .shell = shell,
                  .desktop = desktop,
                  .clipboard = clipboard,
                  .windows = windows,
                  .main_window = windows};
};

}  // namespace vellumark::bench

#endif  // VELLUMARK_BENCH_SCRIPTED_PROGRAM_H_
