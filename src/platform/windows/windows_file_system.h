// The disks of a Windows system.
#ifndef VELLUMARK_PLATFORM_WINDOWS_WINDOWS_FILE_SYSTEM_H_
#define VELLUMARK_PLATFORM_WINDOWS_WINDOWS_FILE_SYSTEM_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/common/host_names.h"
#include "platform/common/windows_path.h"
#include "platform/file_system.h"
#include "platform/text.h"

namespace vellumark {

// Beyond the contract of FileSystem:
// - A name that no file can have (a slash, a colon, a blank or dot at the end, `CON`...) is
//   kBadName everywhere. Blanks and dots at the end are not dropped, so that two spellings never
//   reach one file unnoticed. So is a path of more than 259 characters. An empty path and a
//   network path are kNotFound where something is looked for and kBadName where something is to
//   be made.
// - A folder that tells letter case apart shows in List, with its ambiguous names. Everything
//   else takes the name that Windows takes.
// - The root of a drive cannot be renamed or removed (kAccessDenied).
// - Flush cannot reach a read-only file (kAccessDenied).
// For one thread at a time. The Text and this object must outlive its FolderReaders.
class WindowsFileSystem final : public FileSystem {
 public:
  // The current folder is the process's own; if the core cannot name that, `C:`.
  explicit WindowsFileSystem(const Text& text);

  AttributesResult Attributes(const std::string& path) override;
  Listing List(const std::string& pattern) override;
  std::unique_ptr<FolderReader> OpenFolder(const std::string& folder) override;
  bool WorksOnThreads() const override { return true; }
  std::unique_ptr<FileSystem> ForOtherThread() const override {
    return std::make_unique<WindowsFileSystem>(text_);
  }
  ReadResult Read(const std::string& path, std::size_t limit) override;
  std::optional<std::uint64_t> FreeRoom(const std::string& folder) override;
  bool MayMakeFilesIn(const std::string& folder) override;
  std::optional<FileIdentity> Identity(const std::string& path) override;

  FileError Create(const std::string& path, std::string_view bytes) override;
  FileError Append(const std::string& path, std::string_view bytes) override;
  FileError WriteAt(const std::string& path, std::uint64_t offset, std::string_view bytes) override;
  FileError Copy(const std::string& source, const std::string& target) override;
  FileError Flush(const std::vector<std::string>& paths) override;
  FileError Rename(const std::string& from, const std::string& to, RenameMode mode) override;
  FileError Delete(const std::string& path) override;
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
    std::wstring wide;
  };

  CheckedPath PathToLookFor(const std::string& path) const;
  // kAlreadyExists for the root of a drive.
  CheckedPath PathToMake(const std::string& path) const;
  // kAccessDenied for the root of a drive.
  CheckedPath PathToChange(const std::string& path) const;

  const Text& text_;
  const PathNames names_;
  WindowsPath current_;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_WINDOWS_WINDOWS_FILE_SYSTEM_H_
