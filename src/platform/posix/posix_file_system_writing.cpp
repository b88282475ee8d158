// What changes the disk.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <map>
#include <set>
#include <utility>

#include "platform/common/bulk_copy.h"
#include "platform/posix/descriptor_io.h"
#include "platform/posix/file_error.h"
#include "platform/posix/free_name_rename.h"
#include "platform/posix/new_file.h"
#include "platform/posix/posix_file_system.h"

namespace vellumark {
namespace {

// From here on, one call for the whole file system costs less than one for each file.
constexpr std::size_t kMostSingleFlushes = 16;

// kNone for a regular file whose owner may write to it. The system itself would let an
// administrator write to a read-only file.
FileError CheckWritableFile(const std::string& host) {
  struct stat status = {};
  if (stat(host.c_str(), &status) != 0) {
    const int failure = errno;
    const bool dead_link = lstat(host.c_str(), &status) == 0;
    return dead_link ? FileError::kAccessDenied : FileErrorFromNumber(failure);
  }
  const bool writable = S_ISREG(status.st_mode) && (status.st_mode & S_IWUSR) != 0;
  return writable ? FileError::kNone : FileError::kAccessDenied;
}

bool AreTheSame(const std::string& a, const std::string& b) {
  struct stat first = {};
  struct stat second = {};
  return stat(a.c_str(), &first) == 0 && stat(b.c_str(), &second) == 0 &&
         first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

bool IsLink(const std::string& host) {
  struct stat status = {};
  return lstat(host.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

// Changes nothing but the letter case of a name that the folder holds once.
int RenameToOtherCase(const NamePlace& place, const std::string& new_name) {
  if (place.name == new_name) return 0;
  NamePlace renamed = place;
  renamed.name = new_name;

  const int failure = RenameToFreeName(place.Host(), renamed.Host());
  // A disk that does not tell letter case apart takes the new name for the old one.
  if (failure != EEXIST || !AreTheSame(place.Host(), renamed.Host())) return failure;
  return std::rename(place.Host().c_str(), renamed.Host().c_str()) == 0 ? 0 : errno;
}

// A file in the place of another has its owner, where that is allowed, and its permissions.
void TakeOver(const std::string& file, const struct stat& from) {
  constexpr auto kAnyone = static_cast<uid_t>(-1);
  if (chown(file.c_str(), from.st_uid, from.st_gid) != 0) {
    static_cast<void>(chown(file.c_str(), kAnyone, from.st_gid) != 0);
  }
  chmod(file.c_str(), from.st_mode & 07777U);
}

FileError ReplaceFile(const std::string& from, const std::string& to) {
  const FileError refused = CheckWritableFile(to);
  if (refused != FileError::kNone) return refused;

  // Two names of one file stay as they are when one is renamed over the other; a folder has no
  // place where a file is.
  struct stat status = {};
  if (stat(from.c_str(), &status) != 0) return FileErrorFromNumber(errno);
  if (!S_ISREG(status.st_mode) || AreTheSame(from, to)) return FileError::kAccessDenied;
  if (stat(to.c_str(), &status) == 0) TakeOver(from, status);
  return FileErrorFromNumber(std::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno);
}

Descriptor OpenToFlush(const std::string& host) {
  const int number = open(host.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY);
  if (number >= 0 || errno != EACCES) return Descriptor(number);
  return Descriptor(open(host.c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY));
}

// Runs `flush` (fsync or syncfs) on what a host path names.
FileError FlushOne(const std::string& host, int (*flush)(int)) {
  const Descriptor file = OpenToFlush(host);
  if (!file.IsOpen()) return FileErrorFromNumber(errno);
  return FileErrorFromNumber(flush(file.number()) == 0 ? 0 : errno);
}

FileError FlushFolder(const std::string& host) {
  // Some file systems have nothing to flush in a folder and call the question invalid.
  const FileError error = FlushOne(host, fsync);
  return error == FileError::kBadName ? FileError::kNone : error;
}

FileError FlushFileSystems(const std::map<dev_t, std::string>& one_of_each) {
  FileError first_error = FileError::kNone;
  for (const auto& [device, host] : one_of_each) {
    const FileError error = FlushOne(host, syncfs);
    if (first_error == FileError::kNone) first_error = error;
  }
  return first_error;
}

}  // namespace

NamePlace PosixFileSystem::PlaceToChange(const std::string& path) {
  const CheckedPath checked = PathToLookFor(path);
  NamePlace place;
  place.error = checked.error;
  if (place.error != FileError::kNone) return place;

  place = lookup_.FindPlace(checked.path);
  if (place.error != FileError::kNone) return place;
  if (!place.exists) place.error = FileError::kNotFound;
  if (place.ambiguous) place.error = FileError::kAmbiguous;
  return place;
}

NamePlace PosixFileSystem::PlaceToMake(const std::string& path) {
  const CheckedPath checked = PathToMake(path);
  NamePlace place;
  place.error = checked.error;
  if (place.error != FileError::kNone) return place;

  place = lookup_.FindPlace(checked.path);
  const bool is_root = checked.path.names.empty() && place.error == FileError::kAccessDenied;
  if (is_root) place.error = FileError::kAlreadyExists;
  if (place.error != FileError::kNone) return place;
  if (place.ambiguous) place.error = FileError::kAmbiguous;
  if (place.exists) place.error = FileError::kAlreadyExists;
  return place;
}

FileError PosixFileSystem::Create(const std::string& path, std::string_view bytes) {
  const NamePlace place = PlaceToMake(path);
  if (place.error != FileError::kNone) return place.error;

  NewFile file(place.Host());
  if (file.error() != 0) return FileErrorFromNumber(file.error());
  std::size_t written = 0;
  int failure = WriteAll(file.descriptor(), bytes, &written);
  if (failure == 0) failure = file.Finish();
  if (failure == 0) lookup_.Made(place);
  return FileErrorFromNumber(failure);
}

FileError PosixFileSystem::Append(const std::string& path, std::string_view bytes) {
  const NamePlace place = PlaceToChange(path);
  if (place.error == FileError::kNotFound) return Create(path, bytes);
  if (place.error != FileError::kNone) return place.error;

  const FileError refused = CheckWritableFile(place.Host());
  if (refused != FileError::kNone) return refused;
  Descriptor file(open(place.Host().c_str(), O_WRONLY | O_APPEND | O_CLOEXEC | O_NOCTTY));
  struct stat before = {};
  if (!file.IsOpen() || fstat(file.number(), &before) != 0) return FileErrorFromNumber(errno);

  std::size_t written = 0;
  int failure = WriteAll(file.number(), bytes, &written);
  if (failure == 0) failure = file.Close();
  if (failure == 0) return FileError::kNone;

  // Only what this call has added is taken away again, not what others may have added meanwhile.
  struct stat after = {};
  const bool own = stat(place.Host().c_str(), &after) == 0 && after.st_dev == before.st_dev &&
                   after.st_ino == before.st_ino &&
                   after.st_size == before.st_size + static_cast<off_t>(written);
  if (own && truncate(place.Host().c_str(), before.st_size) != 0) {
    return FileError::kInputOutput;
  }
  return FileErrorFromNumber(failure);
}

FileError PosixFileSystem::WriteAt(const std::string& path, std::uint64_t offset,
                                   std::string_view bytes) {
  const NamePlace place = PlaceToChange(path);
  if (place.error != FileError::kNone) return place.error;
  const FileError refused = CheckWritableFile(place.Host());
  if (refused != FileError::kNone) return refused;

  Descriptor file(open(place.Host().c_str(), O_RDWR | O_CLOEXEC | O_NOCTTY));
  struct stat status = {};
  if (!file.IsOpen() || fstat(file.number(), &status) != 0) return FileErrorFromNumber(errno);
  const auto size = static_cast<std::uint64_t>(status.st_size);
  if (offset > size || bytes.size() > size - offset) return FileError::kTooShort;

  // Kept so that a write that fails half way can be taken back.
  std::string old_bytes(bytes.size(), '\0');
  int failure = ReadAllAt(file.number(), offset, &old_bytes);
  if (failure != 0) return FileErrorFromNumber(failure);

  std::size_t written = 0;
  failure = WriteAllAt(file.number(), offset, bytes, &written);
  if (failure == 0) return FileErrorFromNumber(file.Close());

  std::size_t restored = 0;
  WriteAllAt(file.number(), offset, std::string_view(old_bytes).substr(0, written), &restored);
  return FileErrorFromNumber(failure);
}

FileError PosixFileSystem::Copy(const std::string& source, const std::string& target) {
  return CopyToNew(source, target, ReadBack::kNo);
}

FileError PosixFileSystem::CopyVerified(const std::string& source, const std::string& target) {
  return CopyToNew(source, target, ReadBack::kYes);
}

PosixFileSystem::CopyPlan PosixFileSystem::PlanCopy(const std::string& source,
                                                    const std::string& target) {
  CopyPlan plan;
  const PathStatus found = Status(source);
  plan.error = found.error;
  if (found.error != FileError::kNone && !found.dead_link) return plan;
  plan.error = FileError::kAccessDenied;
  if (found.dead_link || !S_ISREG(found.status.st_mode)) return plan;
  plan.from = found.host;
  plan.to = PlaceToMake(target);
  plan.error = plan.to.error;
  return plan;
}

FileError PosixFileSystem::CopyToNew(const std::string& source, const std::string& target,
                                     ReadBack read_back) {
  const CopyPlan plan = PlanCopy(source, target);
  if (plan.error != FileError::kNone) return plan.error;
  const FileError error = CopyHostFile(plan.from, plan.to.Host(), read_back, clones_);
  if (error == FileError::kNone) lookup_.Made(plan.to);
  return error;
}

void PosixFileSystem::CopyAllVerified(std::vector<CopyGroup>& groups,
                                      const std::function<bool(std::size_t)>& begin) {
  CopyOnThreads(*this, groups, begin, [this](const CopyJob& job) -> std::optional<ReadyCopy> {
    const CopyPlan plan = PlanCopy(job.source, job.target);
    struct stat folder = {};
    if (plan.error != FileError::kNone || stat(plan.to.folder.c_str(), &folder) != 0) {
      return std::nullopt;
    }
    // Two files whose temporary names are the same are made one after the other.
    const std::string host = plan.to.Host();
    const std::string made = NewFile::MadeAs(host);
    const std::string name = names_.FromHost(made.substr(made.rfind('/') + 1)).bytes;
    return ReadyCopy{
        .key = std::to_string(folder.st_dev) + '/' + std::to_string(folder.st_ino) + '/' +
               names_.Fold(name),
        .copy = [this, from = plan.from,
                 host] { return CopyHostFile(from, host, ReadBack::kYes, clones_); },
        .made = [this, place = plan.to] { lookup_.Made(place); },
    };
  });
}

FileError PosixFileSystem::Flush(const std::vector<std::string>& paths) {
  FileError first_error = FileError::kNone;
  const auto note = [&first_error](FileError error) {
    if (first_error == FileError::kNone) first_error = error;
  };

  std::set<std::string> files;
  std::set<std::string> folders;
  std::map<dev_t, std::string> one_of_each;  // for each file system, something on it
  for (const std::string& path : paths) {
    const PathStatus found = Status(path);
    note(found.error);
    if (found.error != FileError::kNone) continue;

    const bool folder = S_ISDIR(found.status.st_mode);
    if (!folder && !S_ISREG(found.status.st_mode)) {
      note(FileError::kAccessDenied);
      continue;
    }
    one_of_each.emplace(found.status.st_dev, found.host);
    (folder ? folders : files).insert(found.host);
    // The name itself is kept in the folder that holds it.
    const std::size_t slash = found.host.rfind('/');
    folders.insert(slash == 0 ? "/" : found.host.substr(0, slash));
  }

  if (paths.size() > kMostSingleFlushes) {
    note(FlushFileSystems(one_of_each));
    return first_error;
  }
  for (const std::string& file : files) note(FlushOne(file, fsync));
  for (const std::string& folder : folders) note(FlushFolder(folder));
  return first_error;
}

FileError PosixFileSystem::Rename(const std::string& from, const std::string& to, RenameMode mode) {
  const NamePlace source = PlaceToChange(from);
  if (source.error != FileError::kNone) return source.error;
  const CheckedPath checked = PathToMake(to);
  if (checked.error != FileError::kNone) return checked.error;
  const NamePlace target = lookup_.FindPlace(checked.path);
  if (target.error != FileError::kNone) return target.error;
  if (target.ambiguous) return FileError::kAmbiguous;
  // In another folder its path may lead nowhere.
  if (IsLink(source.Host()) && !AreTheSame(source.folder, target.folder)) {
    return FileError::kAccessDenied;
  }

  lookup_.Forget();
  if (!target.exists) {
    return FileErrorFromNumber(RenameToFreeName(source.Host(), target.Host()));
  }
  // The place holds the disk's spelling: equal names in one folder are one and the same entry.
  if (source.name == target.name && AreTheSame(source.folder, target.folder)) {
    const std::string new_name = names_.ToHost(checked.path.names.back());
    return FileErrorFromNumber(RenameToOtherCase(source, new_name));
  }
  if (mode == RenameMode::kRefuseExisting) return FileError::kAlreadyExists;
  return ReplaceFile(source.Host(), target.Host());
}

FileError PosixFileSystem::Delete(const std::string& path) {
  lookup_.Forget();
  const FileError error = DeleteOne(path);
  lookup_.Forget();
  return error;
}

FileError PosixFileSystem::DeleteOne(const std::string& path) {
  const NamePlace place = PlaceToChange(path);
  if (place.error != FileError::kNone) return place.error;
  const FileError refused = CheckWritableFile(place.Host());
  if (refused != FileError::kNone) return refused;
  return FileErrorFromNumber(unlink(place.Host().c_str()) == 0 ? 0 : errno);
}

std::vector<FileError> PosixFileSystem::DeleteAll(const std::vector<std::string>& paths) {
  lookup_.Forget();
  const PathLookup::Hold hold(lookup_);
  std::vector<FileError> errors;
  errors.reserve(paths.size());
  for (const std::string& path : paths) errors.push_back(DeleteOne(path));
  return errors;
}

std::unique_ptr<FolderHold> PosixFileSystem::HoldFolders() {
  return std::make_unique<PathLookup::Hold>(lookup_);
}

FileError PosixFileSystem::ClearAttributes(const std::string& path) {
  const NamePlace place = PlaceToChange(path);
  if (place.error != FileError::kNone) return place.error;

  struct stat status = {};
  if (stat(place.Host().c_str(), &status) != 0) return FileErrorFromNumber(errno);
  if (!S_ISREG(status.st_mode)) return FileError::kAccessDenied;
  if ((status.st_mode & S_IWUSR) != 0) return FileError::kNone;
  const mode_t mode = (status.st_mode & ~static_cast<mode_t>(S_IFMT)) | S_IWUSR;
  return FileErrorFromNumber(chmod(place.Host().c_str(), mode) == 0 ? 0 : errno);
}

FileError PosixFileSystem::CreateFolder(const std::string& path) {
  const NamePlace place = PlaceToMake(path);
  if (place.error != FileError::kNone) return place.error;
  if (mkdir(place.Host().c_str(), 0777) == 0) {
    lookup_.MadeFolder(place);
    return FileError::kNone;
  }
  const int failure = errno;
  lookup_.Forget();
  return FileErrorFromNumber(failure);
}

FileError PosixFileSystem::RemoveFolder(const std::string& path) {
  const NamePlace place = PlaceToChange(path);
  if (place.error != FileError::kNone) return place.error;
  lookup_.Forget();
  return FileErrorFromNumber(rmdir(place.Host().c_str()) == 0 ? 0 : errno);
}

}  // namespace vellumark
