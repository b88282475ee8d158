#include "savegames/backup_list.h"

#include "foundation/file_utilities.h"
#include "foundation/paths.h"
#include "program.h"

namespace vellumark {

void ForgetBackedUp(Program& program, const std::string& path) {
  PlayState& play = program.play;
  if (!SamePath(program.text, FolderOf(path), play.BackupFolder)) return;
  std::erase_if(play.backed_up, [&](const std::string& name) {
    return SamePath(program.text, name, FileNameOf(path));
  });
}

}  // namespace vellumark
