#include "foundation/companion_files.h"

#include "foundation/file_utilities.h"

namespace vellumark {

std::string CompanionFile(FileSystem& files, const ProgramPaths& paths, std::string_view tail) {
  std::string own = paths.ProgramFolder + std::string(tail);
  if (paths.InstalledFolder.empty() || FileExists(files, own)) return own;
  std::string installed = paths.InstalledFolder + std::string(tail);
  return FileExists(files, installed) ? installed : own;
}

}  // namespace vellumark
