#include "foundation/file_utilities.h"

#include <algorithm>

#include "foundation/paths.h"
#include "foundation/strings.h"
#include "platform/common/bulk_copy.h"
#include "platform/common/temporary_prefix.h"
#include "platform/shell.h"
#include "platform/text.h"

namespace vellumark {
namespace {

bool IsSameFile(FileSystem& files, const std::string& a, const std::string& b) {
  const auto identity = files.Identity(a);
  return identity && identity == files.Identity(b);
}

// Puts the finished temporary file in the place of `path`, or takes it away again.
FileError PutInPlace(FileSystem& files, const std::string& temporary, const std::string& path) {
  const FileError error = files.Rename(temporary, path, RenameMode::kReplaceFile);
  if (error != FileError::kNone) files.Delete(temporary);
  return error;
}

FileError CopyOver(FileSystem& files, const std::string& source, const std::string& destination) {
  const AttributesResult old = files.Attributes(destination);
  const bool replaces = old.error == FileError::kNone;
  if (!replaces && old.error != FileError::kNotFound) return old.error;
  if (replaces && !old.attributes.IsPlainFile()) return FileError::kAccessDenied;

  const std::string temporary = TemporaryNameFor(destination);
  DeleteFileForced(files, temporary);
  if (const FileError error = files.Copy(source, temporary); error != FileError::kNone) {
    return error;
  }
  if (!SameContent(files, source, temporary)) {
    files.Delete(temporary);
    return FileError::kInputOutput;
  }
  if (replaces && old.attributes.read_only) {
    if (const FileError error = files.ClearAttributes(destination); error != FileError::kNone) {
      files.Delete(temporary);
      return error;
    }
  }
  return PutInPlace(files, temporary, destination);
}

}  // namespace

bool FileExists(FileSystem& files, const std::string& path) {
  if (Trimmed(path).empty()) return false;

  if (path.find_first_of("*?") == std::string::npos) {
    const AttributesResult found = files.Attributes(path);
    return found.error == FileError::kNone && found.attributes.IsPlainFile();
  }
  return std::ranges::any_of(files.List(path).entries, &FolderEntry::plain);
}

bool FolderExists(FileSystem& files, const std::string& path) {
  const AttributesResult found = files.Attributes(path);
  return found.error == FileError::kNone && found.attributes.folder;
}

bool SameContent(FileSystem& files, const std::string& a, const std::string& b) {
  return files.SameContent(a, b);
}

bool CopyFileReplacing(FileSystem& files, const std::string& source, const std::string& destination,
                       FileError* why) {
  if (IsSameFile(files, source, destination)) return true;

  FileError error = files.Attributes(source).error;
  if (error == FileError::kNotFound) {
    if (FileExists(files, destination)) DeleteFileForced(files, destination);
  } else if (error == FileError::kNone) {
    error = CopyOver(files, source, destination);
  }
  if (why != nullptr) *why = error;
  return error == FileError::kNone;
}

void CopyAllReplacing(FileSystem& files, std::vector<CopyGroup>& groups,
                      const std::function<bool(std::size_t)>& begin) {
  std::vector<CopyGroup> free(groups.size());
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const bool is_free = std::ranges::all_of(groups[i], [&](const CopyJob& job) {
      return files.Attributes(job.target).error == FileError::kNotFound;
    });
    if (is_free) free[i] = groups[i];
  }
  bool stopped = false;
  const auto goes_on = [&](std::size_t i) {
    stopped = stopped || !begin(i);
    return !stopped;
  };
  files.CopyAllVerified(free, [&](std::size_t i) { return free[i].empty() || goes_on(i); });
  for (std::size_t i = 0; i < groups.size(); ++i) {
    if (free[i].empty()) goes_on(i);
    CopyInOrder(groups[i], [&](std::size_t number, const CopyJob& job) {
      if (free[i].empty() && stopped) return FileError::kStopped;
      const bool taken = free[i].empty() || free[i][number].error == FileError::kAlreadyExists;
      if (!taken) return free[i][number].error;
      FileError error = FileError::kNone;
      CopyFileReplacing(files, job.source, job.target, &error);
      return error;
    });
  }
}

bool DeleteFileForced(FileSystem& files, const std::string& path, FileError* why) {
  if (!FileExists(files, path)) return true;

  FileError error = files.ClearAttributes(path);
  if (error == FileError::kNone) error = files.Delete(path);
  if (why != nullptr) *why = error;
  return error == FileError::kNone;
}

FileError ReplaceFile(FileSystem& files, const std::string& path, std::string_view bytes) {
  const AttributesResult old = files.Attributes(path);
  if (old.error == FileError::kNone) {
    if (!old.attributes.IsPlainFile() || old.attributes.read_only) return FileError::kAccessDenied;
  } else if (old.error != FileError::kNotFound) {
    return old.error;
  }

  // A link stays one: what it leads to is replaced.
  const std::string place = files.FinalPath(path);
  const std::string temporary = TemporaryNameFor(place);
  DeleteFileForced(files, temporary);
  if (const FileError error = files.Create(temporary, bytes); error != FileError::kNone) {
    return error;
  }
  FileError error = files.Flush({temporary});
  if (error == FileError::kNone) {
    const ReadResult back = files.Read(temporary, FileSystem::kWholeFile);
    error = back.error;
    if (error == FileError::kNone && back.bytes != bytes) error = FileError::kInputOutput;
  }
  if (error != FileError::kNone) {
    files.Delete(temporary);
    return error;
  }
  return PutInPlace(files, temporary, place);
}

std::string TemporaryNameFor(const std::string& path) {
  const std::string name = FileNameOf(path);
  const std::size_t replaced = IsTemporaryName(name) ? 0 : kTemporaryPrefix.size();
  return path.substr(0, path.size() - name.size())
      .append(kTemporaryPrefix)
      .append(name.substr(std::min(replaced, name.size())));
}

std::string TemporaryFolderFor(const std::string& path) {
  return path.substr(0, path.size() - FileNameOf(path).size())
      .append(kTemporaryPrefix)
      .append(FileNameOf(path));
}

bool IsTemporaryName(std::string_view name) {
  return EqualsIgnoringAsciiCase(name.substr(0, kTemporaryPrefix.size()), kTemporaryPrefix);
}

bool OpenWithShell(FileSystem& files, const Text& text, Shell& shell, const std::string& document,
                   const std::string& parameters, bool hidden, const std::string& working_folder) {
  const std::string folder = working_folder.empty() ? FolderOf(document) : working_folder;
  return shell.Open(files.HostPath(document), text.ToUtf8(parameters), files.HostPath(folder),
                    hidden);
}

}  // namespace vellumark
