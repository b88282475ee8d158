// Looking and places; what changes the disk stands in posix_file_system_writing.cpp.
#include "platform/posix/posix_file_system.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

#include "platform/posix/descriptor_io.h"
#include "platform/posix/file_error.h"
#include "platform/posix/host_path.h"
#include "platform/posix/posix_folder_reader.h"

namespace vellumark {
namespace {

constexpr std::size_t kLongestNewPath = 259;

std::string WorkingFolder() {
  std::error_code failure;
  const std::filesystem::path folder = std::filesystem::current_path(failure);
  return failure ? "/" : folder.string();
}

class HeldLock final : public FolderLock {
 public:
  explicit HeldLock(Descriptor folder) : folder_(std::move(folder)) {}

 private:
  Descriptor folder_;
};

}  // namespace

PosixFileSystem::PosixFileSystem(const Text& text, DriveMap drives, const std::string& home)
    : text_(text),
      names_(text),
      lookup_(std::move(drives), names_),
      working_folder_(WorkingFolder()) {
  std::optional<WindowsPath> start = FromHost(working_folder_);
  if (!start && !home.empty()) start = FromHost(home);
  if (start) current_ = std::move(*start);
}

std::unique_ptr<FileSystem> PosixFileSystem::ForOtherThread() const {
  return std::make_unique<PosixFileSystem>(text_, lookup_.drives());
}

PosixFileSystem::CheckedPath PosixFileSystem::PathToLookFor(const std::string& path) const {
  std::optional<WindowsPath> parsed = ParseWindowsPath(path, current_);
  if (!parsed) return {FileError::kNotFound, {}};
  if (!parsed->HasOnlyWindowsNames()) return {FileError::kBadName, {}};
  return {FileError::kNone, std::move(*parsed)};
}

PosixFileSystem::CheckedPath PosixFileSystem::PathToMake(const std::string& path) const {
  CheckedPath checked = PathToLookFor(path);
  const bool unnamed = checked.error == FileError::kNotFound;
  if (unnamed || checked.path.Joined().size() > kLongestNewPath) {
    checked.error = FileError::kBadName;
  }
  return checked;
}

PathStatus PosixFileSystem::Status(const std::string& path) {
  const CheckedPath checked = PathToLookFor(path);
  if (checked.error == FileError::kNone) return lookup_.Status(checked.path);

  PathStatus status;
  status.error = checked.error;
  return status;
}

AttributesResult PosixFileSystem::Attributes(const std::string& path) {
  const PathStatus found = Status(path);
  AttributesResult result;
  if (found.dead_link) {
    result.attributes.other = true;
    return result;
  }

  result.error = found.error;
  if (result.error != FileError::kNone) return result;
  result.attributes.folder = S_ISDIR(found.status.st_mode);
  result.attributes.other = !S_ISDIR(found.status.st_mode) && !S_ISREG(found.status.st_mode);
  if (S_ISREG(found.status.st_mode)) {
    result.size = static_cast<std::uint64_t>(found.status.st_size);
  }
  result.attributes.read_only = (found.status.st_mode & S_IWUSR) == 0;
  return result;
}

FileError PosixFileSystem::OpenDirectory(const WindowsPath& path, Directory* directory) {
  *directory = Directory::Open(lookup_.Spelled(path));
  if (directory->error() == ENOENT || directory->error() == ENOTDIR) {
    const FoundPath found = lookup_.Find(path);
    if (found.error != FileError::kNone) return found.error;
    *directory = Directory::Open(found.host);
  }
  return FileErrorFromNumber(directory->error());
}

Listing PosixFileSystem::List(const std::string& pattern) {
  const std::optional<ListPattern> parsed = ParseListPattern(pattern, current_);
  if (!parsed) return {FileError::kNotFound, {}, {}};
  if (!parsed->folder.HasOnlyWindowsNames()) return {FileError::kBadName, {}, {}};

  Directory directory;
  const FileError error = OpenDirectory(parsed->folder, &directory);
  if (error != FileError::kNone) return {error, {}, {}};
  return ListDirectory(&directory, names_, parsed->names).listing;
}

std::unique_ptr<FolderReader> PosixFileSystem::OpenFolder(const std::string& folder) {
  const CheckedPath checked = PathToLookFor(folder);
  Directory directory;
  FileError error = checked.error;
  if (error == FileError::kNone) error = OpenDirectory(checked.path, &directory);

  if (error != FileError::kNone) return std::make_unique<PosixFolderReader>(error, names_);
  return std::make_unique<PosixFolderReader>(std::move(directory), names_);
}

ReadResult PosixFileSystem::Read(const std::string& path, std::size_t limit) {
  const PathStatus found = Status(path);
  if (found.error != FileError::kNone && !found.dead_link) return {found.error, {}};
  if (!found.dead_link && S_ISDIR(found.status.st_mode)) return {FileError::kIsAFolder, {}};
  // A pipe or a device could keep the caller waiting for ever.
  if (found.dead_link || !S_ISREG(found.status.st_mode)) return {FileError::kAccessDenied, {}};

  const Descriptor file(open(found.host.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
  if (!file.IsOpen()) return {FileErrorFromNumber(errno), {}};
  return ReadUpTo(file.number(), limit, FileEnd::kEmptyRead,
                  static_cast<std::size_t>(found.status.st_size));
}

bool PosixFileSystem::SameContent(const std::string& a, const std::string& b) {
  const Descriptor first = OpenToRead(a);
  const Descriptor second = OpenToRead(b);
  return first.IsOpen() && second.IsOpen() && CompareAll(first.number(), second.number()) == 0;
}

Descriptor PosixFileSystem::OpenToRead(const std::string& path) {
  const PathStatus found = Status(path);
  if (found.error != FileError::kNone || !S_ISREG(found.status.st_mode)) return Descriptor(-1);
  return Descriptor(open(found.host.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
}

std::optional<FileIdentity> PosixFileSystem::Identity(const std::string& path) {
  const PathStatus found = Status(path);
  if (found.error != FileError::kNone) return std::nullopt;
  return FileIdentity{found.status.st_dev, found.status.st_ino};
}

std::optional<std::uint64_t> PosixFileSystem::FreeRoom(const std::string& folder) {
  const PathStatus found = Status(folder);
  struct statvfs room = {};
  if (found.error != FileError::kNone || statvfs(found.host.c_str(), &room) != 0) {
    return std::nullopt;
  }
  return static_cast<std::uint64_t>(room.f_bavail) * room.f_frsize;
}

bool PosixFileSystem::MayMakeFilesIn(const std::string& folder) {
  const PathStatus found = Status(folder);
  return found.error == FileError::kNone && S_ISDIR(found.status.st_mode) &&
         faccessat(AT_FDCWD, found.host.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

std::string PosixFileSystem::FinalPath(const std::string& path) {
  const PathStatus found = Status(path);
  struct stat status = {};
  const bool link = found.error == FileError::kNone && lstat(found.host.c_str(), &status) == 0 &&
                    S_ISLNK(status.st_mode);
  if (!link) return path;

  std::error_code error;
  const std::filesystem::path target = std::filesystem::canonical(found.host, error);
  return error ? path : FromHostPath(target.native()).value_or(path);
}

std::string PosixFileSystem::CurrentFolder() { return current_.Joined(); }

FileError PosixFileSystem::SetCurrentFolder(const std::string& folder) {
  CheckedPath checked = PathToLookFor(folder);
  if (checked.error != FileError::kNone) return checked.error;
  const FoundPath found = lookup_.Find(checked.path);
  if (found.error != FileError::kNone) return found.error;

  // The process follows, and with it the programs that it starts and the system's dialogs.
  if (chdir(found.host.c_str()) != 0) return FileErrorFromNumber(errno);
  current_ = std::move(checked.path);
  return FileError::kNone;
}

std::vector<Drive> PosixFileSystem::Drives() {
  std::vector<Drive> drives;
  for (const auto& [letter, root] : lookup_.drives().roots) {
    drives.push_back({letter, ShownName(root)});
  }
  return drives;
}

std::string PosixFileSystem::HostPath(const std::string& path) {
  const CheckedPath checked = PathToLookFor(path);
  return checked.error == FileError::kNone ? lookup_.HostPath(checked.path) : std::string();
}

std::optional<WindowsPath> PosixFileSystem::FromHost(std::string_view host_path) const {
  if (host_path.empty()) return std::nullopt;
  std::string absolute(host_path);
  if (absolute.front() != '/') absolute = working_folder_ + '/' + absolute;
  return WindowsPathFromHost(absolute, lookup_.drives(), names_);
}

std::optional<std::string> PosixFileSystem::FromHostPath(std::string_view host_path) {
  const std::optional<WindowsPath> path = FromHost(host_path);
  if (!path) return std::nullopt;
  return path->Joined();
}

std::string PosixFileSystem::FromCommandLine(const std::string& typed) {
  if (typed.empty() || typed.front() == '~' || typed.find('"') != std::string::npos) return typed;

  const bool has_drive = typed.size() >= 2 && typed[1] == ':';
  const bool has_backslash = typed.find('\\') != std::string::npos;
  const bool has_slash = typed.find('/') != std::string::npos;
  if (has_drive || (has_backslash && !has_slash)) {
    const CheckedPath checked = PathToLookFor(typed);
    return checked.error == FileError::kNone ? checked.path.Joined() : typed;
  }
  return FromHostPath(names_.ToHost(typed)).value_or(typed);
}

LockResult PosixFileSystem::LockFolder(const std::string& folder) {
  const PathStatus found = Status(folder);
  LockResult result;
  if (found.error != FileError::kNone) return result;

  Descriptor descriptor(open(found.host.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!descriptor.IsOpen()) return result;
  if (flock(descriptor.number(), LOCK_EX | LOCK_NB) != 0) {
    if (errno == EWOULDBLOCK) result.answer = LockAnswer::kHeldByAnother;
    return result;
  }
  result.answer = LockAnswer::kTaken;
  result.lock = std::make_unique<HeldLock>(std::move(descriptor));
  return result;
}

}  // namespace vellumark
