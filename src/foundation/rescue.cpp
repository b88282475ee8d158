#include "foundation/rescue.h"

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "program.h"

namespace vellumark {
namespace {

// Moves one file: by renaming it, or, where that cannot be done, by a verified and flushed copy.
FileError Move(FileSystem& files, const std::string& from, const std::string& to) {
  FileError error = files.Rename(from, to, RenameMode::kRefuseExisting);
  if (error == FileError::kNone || error == FileError::kAlreadyExists) return error;
  if (!CopyFileReplacing(files, from, to, &error)) return error;
  error = files.Flush({to});
  if (error == FileError::kNone) error = files.Delete(from);
  // What stays where it was is not kept twice.
  if (error != FileError::kNone && files.SameContent(from, to)) files.Delete(to);
  return error;
}

}  // namespace

FileError MakeRescueFolder(Program& program, std::string& folder) {
  const std::string parent = program.paths.ProgramFolder + LoadMessage(kRescueFolder);
  FileError error = program.files.Attributes(parent).error;
  folder = parent;
  if (error == FileError::kNotFound) error = program.files.CreateFolder(parent);
  for (int n = 1; error == FileError::kNone; ++n) {
    folder = InFolder(parent, std::to_string(n));
    error = program.files.Attributes(folder).error;
    if (error == FileError::kNotFound) return program.files.CreateFolder(folder);
  }
  return error;
}

Rescue SetAside(Program& program, const std::vector<std::string>& paths) {
  Rescue rescue;
  if (paths.empty()) return rescue;
  const FileError no_folder = MakeRescueFolder(program, rescue.folder);
  if (no_folder != FileError::kNone) {
    rescue.folder.clear();
    for (const std::string& path : paths) rescue.failures.push_back({path, no_folder});
    return rescue;
  }
  for (const std::string& path : paths) {
    const FileError error = Move(program.files, path, InFolder(rescue.folder, FileNameOf(path)));
    if (error != FileError::kNone) rescue.failures.push_back({path, error});
  }
  if (rescue.failures.size() == paths.size()) {
    program.files.RemoveFolder(rescue.folder);
    rescue.folder.clear();
  }
  return rescue;
}

bool SetAsideToo(Program& program, const std::string& path, Rescue& rescue) {
  FileError error = FileError::kNone;
  if (rescue.folder.empty()) {
    std::string folder;
    error = MakeRescueFolder(program, folder);
    if (error == FileError::kNone) rescue.folder = folder;
  }
  if (error == FileError::kNone) {
    error = Move(program.files, path, InFolder(rescue.folder, FileNameOf(path)));
  }
  if (error != FileError::kNone) rescue.failures.push_back({path, error});
  return error == FileError::kNone;
}

}  // namespace vellumark
