#include "game/running_game.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "foundation/talk.h"
#include "platform/clipboard.h"
#include "platform/file_system.h"
#include "platform/shell.h"
#include "platform/text.h"
#include "program.h"

namespace vellumark {
namespace {

constexpr std::size_t kLongestTitle = 255;

// True for a file without the mark that every Windows program begins with.
bool IsNoProgram(Program& program, const std::string& file) {
  constexpr std::string_view kMark = "MZ";
  const ReadResult read = program.files.Read(file, kMark.size());
  return read.error == FileError::kNone && read.bytes != kMark;
}

std::string WhyNotStarted(Program& program, const std::string& executable) {
  const std::string missing = program.shell.MissingFor(program.files.HostPath(executable));
  if (!missing.empty()) return LoadMessage(kGameNeeds, {Quoted(executable), missing});
  const bool no_program = IsNoProgram(program, executable);
  return LoadMessage(no_program ? kGameIsNoProgram : kGameNotStarted, {Quoted(executable)});
}

// The same is told once a run: what is missing stays missing.
void TellNotStarted(Program& program, const std::string& executable) {
  const std::string why = WhyNotStarted(program, executable);
  if (std::exchange(program.play.told_not_started, why) == why) return;
  Tell(program, why, BoxIcon::kExclamation);
}

}  // namespace

void ListTopLevelWindows(Program& program) {
  program.play.WindowList.clear();
  for (const TopLevelWindow& window : program.desktop.List()) {
    std::string title = program.text.FromUtf8(window.title).bytes.substr(0, kLongestTitle);
    title.resize(std::min(title.size(), title.find('\0')));
    if (!title.empty()) program.play.WindowList.push_back({window.handle, title});
  }
}

WindowHandle FindWindowByTitle(Program& program, std::string& title, bool partial) {
  ListTopLevelWindows(program);
  const std::string wanted = program.text.Fold(title);
  for (const TopLevelWindow& window : program.play.WindowList) {
    const std::string found = program.text.Fold(window.title);
    if (partial ? found.find(wanted) == std::string::npos : found != wanted) continue;
    title = window.title;
    return window.handle;
  }
  return 0;
}

bool ActivateRunningGame(Program& program) {
  std::string title = LoadMessage(330);
  const WindowHandle window = FindWindowByTitle(program, title, false);
  if (window == 0) {
    const std::string name = FileNameOf(Trimmed(program.archive.settings.GameExecutable));
    return !SamePath(program.text, name, LoadMessage(331));
  }

  program.files.SetCurrentFolder(Trimmed(program.archive.settings.GameFolder));
  const ProcessId process = program.desktop.ProcessOf(window);
  switch (program.desktop.Activate(window, process)) {
    case Activation::kFailed:
      return false;
    case Activation::kActivated:
      program.desktop.PressEnter();
      break;
    case Activation::kNotOurTurn:
      break;
  }
  return true;
}

void BringUpGame(Program& program) {
  if (ActivateRunningGame(program)) return;
  const std::string executable = Trimmed(program.archive.settings.GameExecutable);
  if (!OpenWithShell(program.files, program.text, program.shell, executable, "", false, "")) {
    TellNotStarted(program, executable);
  }
}

void StartGame(Program& program) {
  program.clipboard.Empty();
  program.capture.CaptureArmed = true;
  BringUpGame(program);
}

}  // namespace vellumark
