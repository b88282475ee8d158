#include "savegames/savegame_place.h"

#include <string>
#include <vector>

#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "platform/clipboard.h"
#include "platform/file_system.h"
#include "platform/shell.h"
#include "program.h"

namespace vellumark {
namespace {

// The selected savegames' files; empty after telling the user that none is selected.
std::vector<std::string> SelectedFiles(Program& program) {
  std::vector<std::string> paths;
  for (const std::int16_t index : program.selection.indices) {
    paths.push_back(program.catalogue.entries[static_cast<std::size_t>(index)].SavegamePath);
  }
  if (paths.empty()) {
    PlaySoundEffect(program, SoundEffect::kRefusal);
    Tell(program, LoadMessage(kSelectForPath), BoxIcon::kCritical);
  }
  return paths;
}

}  // namespace

void ShowInFileManager(Program& program) {
  const std::vector<std::string> paths = SelectedFiles(program);
  if (paths.empty()) return;
  const std::string& path = paths.front();
  if (program.shell.ShowInFolder(program.files.HostPath(path))) return;
  Tell(program, LoadMessage(kNotShownInFolder, {Quoted(FolderOf(path))}), BoxIcon::kExclamation);
}

void CopyPaths(Program& program) {
  std::string text;
  for (const std::string& path : SelectedFiles(program)) {
    if (!text.empty()) text += '\n';
    text += program.files.HostPath(path);
  }
  if (!text.empty()) program.clipboard.PutText(text);
}

}  // namespace vellumark
