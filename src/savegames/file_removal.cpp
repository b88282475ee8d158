#include "savegames/file_removal.h"

#include "foundation/file_utilities.h"
#include "program.h"
#include "savegames/backup_list.h"

namespace vellumark {

std::vector<Failure> RemoveFiles(Program& program, const std::vector<std::string>& paths) {
  std::vector<Failure> failures;
  const std::vector<FileError> errors = program.files.DeleteAll(paths);
  for (std::size_t i = 0; i < paths.size(); ++i) {
    FileError error = errors[i];
    if (error == FileError::kNotFound) continue;
    if (error == FileError::kAccessDenied) DeleteFileForced(program.files, paths[i], &error);
    if (error == FileError::kNone) {
      ForgetBackedUp(program, paths[i]);
    } else {
      failures.push_back({paths[i], error});
    }
  }
  return failures;
}

}  // namespace vellumark
