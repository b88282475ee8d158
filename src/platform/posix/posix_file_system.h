// The disk of a Linux system, as the core sees it: Windows paths on the drives of a Wine prefix.
#ifndef VELLUMARK_PLATFORM_POSIX_POSIX_FILE_SYSTEM_H_
#define VELLUMARK_PLATFORM_POSIX_POSIX_FILE_SYSTEM_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/common/host_names.h"
#include "platform/common/windows_path.h"
#include "platform/file_system.h"
#include "platform/posix/descriptor_io.h"
#include "platform/posix/drive_map.h"
#include "platform/posix/host_copy.h"
#include "platform/posix/host_directory.h"
#include "platform/posix/path_lookup.h"
#include "platform/text.h"

namespace vellumark {

// Beyond the contract of FileSystem:
// - A name that Windows could not hold (a slash, a colon, a blank or dot at the end, `CON`...) is
//   kBadName everywhere. Blanks and dots at the end are not dropped, so that two spellings never
//   reach one file unnoticed. An empty path and a network path are kNotFound where something is
//   looked for and kBadName where something is to be made; so is a new path of more than 259
//   characters.
// - A folder on the way that is spelled in no way that the disk holds, and stands there in
//   several, is kAmbiguous to everything that writes.
// - What is neither a regular file nor a folder is never read, written or deleted (kAccessDenied).
// - The root of a drive cannot be renamed or removed (kAccessDenied).
// For one thread at a time. The Text and this object must outlive its FolderReaders.
class PosixFileSystem final : public FileSystem {
 public:
  // The current folder is the process's working directory; if the core cannot name that, the host
  // folder `home`, else `Z:`.
  PosixFileSystem(const Text& text, DriveMap drives, const std::string& home = {});

  AttributesResult Attributes(const std::string& path) override;
  Listing List(const std::string& pattern) override;
  std::unique_ptr<FolderReader> OpenFolder(const std::string& folder) override;
  bool WorksOnThreads() const override { return true; }
  std::unique_ptr<FileSystem> ForOtherThread() const override;
  ReadResult Read(const std::string& path, std::size_t limit) override;
  bool SameContent(const std::string& a, const std::string& b) override;
  std::optional<FileIdentity> Identity(const std::string& path) override;
  std::optional<std::uint64_t> FreeRoom(const std::string& folder) override;
  bool MayMakeFilesIn(const std::string& folder) override;
  std::string FinalPath(const std::string& path) override;

  FileError Create(const std::string& path, std::string_view bytes) override;
  FileError Append(const std::string& path, std::string_view bytes) override;
  FileError WriteAt(const std::string& path, std::uint64_t offset, std::string_view bytes) override;
  FileError Copy(const std::string& source, const std::string& target) override;
  FileError CopyVerified(const std::string& source, const std::string& target) override;
  void CopyAllVerified(std::vector<CopyGroup>& groups,
                       const std::function<bool(std::size_t)>& begin) override;
  FileError Flush(const std::vector<std::string>& paths) override;
  FileError Rename(const std::string& from, const std::string& to, RenameMode mode) override;
  FileError Delete(const std::string& path) override;
  std::vector<FileError> DeleteAll(const std::vector<std::string>& paths) override;
  std::unique_ptr<FolderHold> HoldFolders() override;
  FileError ClearAttributes(const std::string& path) override;
  FileError CreateFolder(const std::string& path) override;
  FileError RemoveFolder(const std::string& path) override;

  std::string CurrentFolder() override;
  FileError SetCurrentFolder(const std::string& folder) override;
  std::vector<Drive> Drives() override;
  std::string HostPath(const std::string& path) override;
  std::optional<std::string> FromHostPath(std::string_view host_path) override;
  std::string FromCommandLine(const std::string& typed) override;
  LockResult LockFolder(const std::string& folder) override;

 private:
  struct CheckedPath {
    FileError error = FileError::kNone;
    WindowsPath path;
  };

  CheckedPath PathToLookFor(const std::string& path) const;
  CheckedPath PathToMake(const std::string& path) const;

  FileError DeleteOne(const std::string& path);
  // A file that is there, and a place for its copy.
  struct CopyPlan {
    FileError error = FileError::kNone;
    std::string from;  // host path
    NamePlace to;
  };
  CopyPlan PlanCopy(const std::string& source, const std::string& target);
  FileError CopyToNew(const std::string& source, const std::string& target, ReadBack read_back);
  PathStatus Status(const std::string& path);
  // Not open when the path names no regular file that can be read.
  Descriptor OpenToRead(const std::string& path);
  FileError OpenDirectory(const WindowsPath& path, Directory* directory);
  // The place of a file that is to be changed: one that exists and is not ambiguous.
  NamePlace PlaceToChange(const std::string& path);
  // The place of a name that is to be made; kAlreadyExists when it is taken.
  NamePlace PlaceToMake(const std::string& path);

  std::optional<WindowsPath> FromHost(std::string_view host_path) const;

  const Text& text_;
  const PathNames names_;
  PathLookup lookup_;
  CloneSupport clones_;
  std::string working_folder_;  // the process's own, at construction
  WindowsPath current_;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_POSIX_FILE_SYSTEM_H_
