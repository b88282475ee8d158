#include "game/next_subfolder.h"

#include "foundation/paths.h"
#include "foundation/strings.h"
#include "program.h"

namespace vellumark {

FileError MakeNextSubfolder(Program& program, std::string& folder) {
  const ArchiveSettings& settings = program.archive.settings;
  const std::string stem =
      InFolder(Trimmed(settings.MainFolder), Trimmed(settings.SubfolderBaseName));
  for (int n = 1;; ++n) {
    folder = stem + std::to_string(n);
    const FileError error = program.files.Attributes(folder).error;
    if (error == FileError::kNone) continue;
    return error == FileError::kNotFound ? program.files.CreateFolder(folder) : error;
  }
}

}  // namespace vellumark
