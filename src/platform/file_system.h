// The one door to the disk. Every file that Vellumark reads, writes or looks for goes through
// here, so that a test can record, fail or kill any single operation.
//
// Paths are texts in the system's 8-bit code page in Windows form: `X:\folder\name`, backslashes
// between names, `X:` alone meaning the drive's root. Names compare without case by Text's fixed
// path rule; where a disk tells cases apart, a name is looked up as spelled first, then without
// case. A relative path counts from the current folder.
#ifndef VELLUMARK_PLATFORM_FILE_SYSTEM_H_
#define VELLUMARK_PLATFORM_FILE_SYSTEM_H_

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vellumark {

// Why an operation on the disk did not succeed.
enum class FileError {
  kNone,
  kNotFound,       // the name, or a folder on the way to it, does not exist
  kAlreadyExists,  // the name to be made is taken, in whatever letter case
  kAccessDenied,   // the system refuses, or the file is read-only
  kDiskFull,       // no room, or the user's quota is used up
  kNotReady,       // the drive has no medium or cannot be reached
  kBadName,        // no name or path that can exist on this system
  kAmbiguous,      // the folder holds the name twice, in different letter case
  kNotEmpty,       // a folder to be removed still holds something
  kNotAFolder,     // a file stands where a folder should
  kIsAFolder,      // a folder stands where a file should be read or made
  kInUse,          // another program holds the file
  kTooShort,       // the file ends before the place that was to be changed
  kStopped,        // the session ends: the operation did not come to it
  kInputOutput,    // the device failed, or anything else
};

struct FileAttributes {
  bool folder = false;
  bool read_only = false;  // on Linux: the owner may not write
  bool hidden = false;     // never on Linux
  bool system = false;     // never on Linux
  bool archive = false;    // never on Linux
  bool other = false;      // neither a regular file nor a folder (device, socket, dead link)

  // True for what counts as a file to the program's rules; read-only and archive do not matter.
  bool IsPlainFile() const { return !folder && !hidden && !system && !other; }
  // True for a folder without any other attribute.
  bool IsBareFolder() const {
    return folder && !read_only && !hidden && !system && !archive && !other;
  }
};

struct AttributesResult {
  FileError error = FileError::kNone;
  FileAttributes attributes;  // meaningful when error is kNone
  std::uint64_t size = 0;     // of a file, in bytes; 0 for anything else
};

// One name in a folder.
struct FolderEntry {
  std::string name;        // as the disk spells it
  bool folder = false;     // a folder, links followed
  bool plain = false;      // a plain file in the sense of FileAttributes::IsPlainFile
  bool ambiguous = false;  // another name of the folder differs from it by case only
};

// A name that stands in a folder but cannot be spoken of in the core.
struct UnusableName {
  enum class Reason { kNotInCodePage, kNotAWindowsName };
  std::string shown;  // UTF-8, for showing only
  Reason reason = Reason::kNotInCodePage;
  bool folder = false;
};

struct Listing {
  FileError error = FileError::kNone;
  std::vector<FolderEntry> entries;    // without `.` and `..`; a stable order, the system's own
  std::vector<UnusableName> unusable;  // names left out of `entries`
};

struct ReadResult {
  FileError error = FileError::kNone;
  std::string bytes;  // what was read; also what came before a failure
};

// What makes two paths the same thing on the disk.
struct FileIdentity {
  std::uint64_t device = 0;
  std::uint64_t index = 0;
  bool operator==(const FileIdentity&) const = default;
};

struct Drive {
  char letter = 'C';  // upper case
  std::string label;  // UTF-8, for showing: the volume's name, on Linux the host folder
};

// A folder listed once and held open, for reading many of its files at the cost of the bare
// system calls. The entries are those of the moment of opening; a file that has vanished since
// answers kNotFound. One of a file system that WorksOnThreads may be asked by several at once.
class FolderReader {
 public:
  virtual ~FolderReader() = default;
  virtual const Listing& Contents() const = 0;
  // The first `limit` bytes of a file of Contents().entries (fewer when the file is shorter).
  virtual ReadResult Read(const FolderEntry& entry, std::size_t limit) = 0;
  // Opens a folder of Contents().entries. Never null; a failure is the listing's error.
  virtual std::unique_ptr<FolderReader> OpenFolder(const FolderEntry& entry) = 0;
};

// Held for as long as this program is the only one in its folder; given back by destruction and
// by the end of the process, however it ends.
class FolderLock {
 public:
  virtual ~FolderLock() = default;
};

// Lets lookups be answered from one listing of each folder, for as long as this lives.
class FolderHold {
 public:
  virtual ~FolderHold() = default;
};

enum class LockAnswer { kTaken, kHeldByAnother, kUnavailable };

struct LockResult {
  LockAnswer answer = LockAnswer::kUnavailable;
  std::unique_ptr<FolderLock> lock;  // set when answer is kTaken
};

// A file to be copied, and what became of it.
struct CopyJob {
  std::string source;
  std::string target;
  FileError error = FileError::kNone;
};

// Files that belong together: where the first does not arrive, the others stay behind with its
// error.
using CopyGroup = std::vector<CopyJob>;

enum class RenameMode { kRefuseExisting, kReplaceFile };

class FileSystem {
 public:
  static constexpr std::size_t kWholeFile = std::numeric_limits<std::size_t>::max();

  virtual ~FileSystem() = default;

  // ---- Looking ----

  // The attributes of what `path` names (links followed). No wildcards. kNotFound when nothing of
  // that name exists.
  virtual AttributesResult Attributes(const std::string& path) = 0;

  // The entries of the folder part of `pattern` whose name matches its last part: `*` and `?` as
  // wildcards, `*.*` matches every name, `name.*` also `name`; without case. A missing folder is
  // kNotFound, a folder without a match an empty list.
  virtual Listing List(const std::string& pattern) = 0;

  // Opens and lists a folder. Never null; a failure is the listing's error.
  virtual std::unique_ptr<FolderReader> OpenFolder(const std::string& folder) = 0;

  // Whether its FolderReaders, each by itself, can be used on several threads. The file system is
  // for one thread at a time all the same.
  virtual bool WorksOnThreads() const { return false; }

  // The same disk, for one other thread, which may work while this one does. Not beyond the life of
  // the system's Text. Null where all work has to come here: a test's disk sees every call then.
  virtual std::unique_ptr<FileSystem> ForOtherThread() const { return nullptr; }

  // The first `limit` bytes of a file.
  virtual ReadResult Read(const std::string& path, std::size_t limit) = 0;

  // True when both files could be read and hold the same bytes. Built from Read where a system has
  // nothing faster.
  virtual bool SameContent(const std::string& a, const std::string& b);

  // Empty when nothing of that name exists or it cannot be told.
  virtual std::optional<FileIdentity> Identity(const std::string& path) = 0;

  // The bytes that new files in this folder can take at that moment; empty when that cannot be
  // told.
  virtual std::optional<std::uint64_t> FreeRoom(const std::string& folder) = 0;

  // True when this user may make files in a folder, which is not tried.
  virtual bool MayMakeFilesIn(const std::string& folder) = 0;

  // Where the file lies that a path leads to: another path when its name is a link that is
  // followed, `path` itself otherwise or when a path cannot express it.
  virtual std::string FinalPath(const std::string& path) { return path; }

  // ---- Writing ----
  // Each answers kNone on success. A call that fails has left the disk as it was, as far as the
  // system lets it be undone; the death of the program inside a call can leave a part of a new
  // file behind, never a part of an old one changed except in Append and WriteAt.

  // Makes a new file of these bytes; kAlreadyExists when the name is taken.
  virtual FileError Create(const std::string& path, std::string_view bytes) = 0;

  // Adds bytes at the end of a file; makes the file when it is missing. A read-only file is
  // kAccessDenied, also for an administrator.
  virtual FileError Append(const std::string& path, std::string_view bytes) = 0;

  // Changes bytes in place from `offset` on, which must lie inside the file together with all
  // bytes (else kTooShort); the length stays. Missing: kNotFound. Read-only: kAccessDenied.
  virtual FileError WriteAt(const std::string& path, std::uint64_t offset,
                            std::string_view bytes) = 0;

  // Copies a file's bytes to a new name, and its time of change where the disk takes one;
  // kAlreadyExists when the name is taken.
  virtual FileError Copy(const std::string& source, const std::string& target) = 0;

  // Copies as Copy does, reads the copy back and compares; one that differs is taken away again and
  // is kInputOutput. Built from the other operations where a system has nothing faster.
  virtual FileError CopyVerified(const std::string& source, const std::string& target);

  // CopyVerified for all files of all groups, with the results of doing it in their order; sets the
  // error of each. Before each group, and in their order, it asks `begin` on the calling thread;
  // where that answers false, the group and all after it get kStopped. A system that gains from it
  // copies on several threads: groups before may not have arrived yet then.
  virtual void CopyAllVerified(std::vector<CopyGroup>& groups,
                               const std::function<bool(std::size_t)>& begin);

  // Returns when the contents and names of these files are safe on the medium. One call for all
  // files of an operation is cheaper than one call each.
  virtual FileError Flush(const std::vector<std::string>& paths) = 0;

  // Gives a file or folder another name on the same volume. kRefuseExisting answers
  // kAlreadyExists when the target's name is taken (a change of case only is allowed);
  // kReplaceFile puts the file in the target file's place in one step, keeping the target's
  // spelling, permissions or access list and, where allowed, its owner; a read-only target is
  // kAccessDenied. kAmbiguous when either name is. kAccessDenied may also be the answer to moving a
  // link into another folder: callers copy then.
  virtual FileError Rename(const std::string& from, const std::string& to, RenameMode mode) = 0;

  // Deletes a file, never a folder. Read-only: kAccessDenied. Ambiguous: kAmbiguous.
  virtual FileError Delete(const std::string& path) = 0;

  // Delete for many files, in their order; an answer for each. It may look at what a folder holds
  // once for all of them, before the first is deleted.
  virtual std::vector<FileError> DeleteAll(const std::vector<std::string>& paths) {
    std::vector<FileError> errors;
    errors.reserve(paths.size());
    for (const std::string& path : paths) errors.push_back(Delete(path));
    return errors;
  }

  // For an operation that makes many files in one folder. What this file system changes is seen as
  // ever; a name that another program makes may be missed in another letter case. Null where names
  // are looked up without a listing.
  virtual std::unique_ptr<FolderHold> HoldFolders() { return nullptr; }

  // Takes read-only, hidden and system away from a file.
  virtual FileError ClearAttributes(const std::string& path) = 0;

  virtual FileError CreateFolder(const std::string& path) = 0;
  // Removes an empty folder; kNotEmpty otherwise.
  virtual FileError RemoveFolder(const std::string& path) = 0;

  // ---- Places ----

  virtual std::string CurrentFolder() = 0;
  virtual FileError SetCurrentFolder(const std::string& folder) = 0;

  // The drives that exist, by letter. Whether one is ready, List of its root tells (kNotReady).
  virtual std::vector<Drive> Drives() = 0;

  // The path in the form that other programs of this system take, in UTF-8; names that exist in
  // the disk's own letter case. Empty when the path's drive does not exist.
  virtual std::string HostPath(const std::string& path) = 0;

  // The other way round, for paths that the system hands over (UTF-8): the program's folder, the
  // answer of a file dialog. Empty when the code page or a Windows path cannot express it.
  virtual std::optional<std::string> FromHostPath(std::string_view host_path) = 0;

  // A path as a user types it on the command line (code page), made absolute: a Windows path, or
  // a path in the system's own form. A text that is neither comes back unchanged.
  virtual std::string FromCommandLine(const std::string& typed) = 0;

  // Tries to become the only program that holds this folder's lock; does not wait.
  virtual LockResult LockFolder(const std::string& folder) = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_FILE_SYSTEM_H_
