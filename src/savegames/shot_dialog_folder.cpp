#include "savegames/shot_dialog_folder.h"

#include "foundation/file_utilities.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "program.h"

namespace vellumark {

std::string ShotStartFolder(Program& program) {
  std::string folder = Trimmed(program.preferences.ShotFolder);
  if (FolderExists(program.files, folder)) return folder;
  std::string parent = FolderOf(folder);
  return FolderExists(program.files, parent) ? parent : folder;
}

}  // namespace vellumark
