#include "game/running_game.h"

#include <algorithm>

#include "foundation/messages.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "game/start_question.h"
#include "platform/clipboard.h"
#include "platform/file_system.h"
#include "platform/text.h"
#include "program.h"

namespace vellumark {
namespace {

constexpr std::size_t kLongestTitle = 255;

bool IsNamedAsTheGame(const Program& program) {
  const std::string name = FileNameOf(Trimmed(program.archive.settings.GameExecutable));
  return SamePath(program.text, name, LoadMessage(331));
}

// That a program is missing is told when it is started.
bool MayStartGame(Program& program) {
  const std::string executable = Trimmed(program.archive.settings.GameExecutable);
  return program.files.Attributes(executable).error == FileError::kNotFound ||
         MayStartProgram(program, executable);
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
  if (window == 0) return !IsNamedAsTheGame(program);

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

bool MayBringUpGame(Program& program) {
  std::string title = LoadMessage(330);
  if (FindWindowByTitle(program, title, false) != 0 || !IsNamedAsTheGame(program)) return true;
  return MayStartGame(program);
}

void BringUpGame(Program& program, GameSlots slots) {
  if (ActivateRunningGame(program) || !MayStartGame(program)) return;
  StartGameProgram(program, Trimmed(program.archive.settings.GameExecutable), slots);
}

void StartGame(Program& program) {
  if (!MayBringUpGame(program)) return;
  program.clipboard.Empty();
  program.capture.CaptureArmed = true;
  BringUpGame(program, GameSlots::kAsTheyWere);
}

}  // namespace vellumark
