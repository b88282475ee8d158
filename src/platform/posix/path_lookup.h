// From the core's paths to the host's: each name as spelled first, then without case.
#ifndef VELLUMARK_PLATFORM_POSIX_PATH_LOOKUP_H_
#define VELLUMARK_PLATFORM_POSIX_PATH_LOOKUP_H_

#include <sys/stat.h>

#include <cstddef>
#include <string>
#include <unordered_map>

#include "platform/common/host_names.h"
#include "platform/common/windows_path.h"
#include "platform/file_system.h"
#include "platform/posix/drive_map.h"
#include "platform/posix/name_variants.h"

namespace vellumark {

// Something that exists. A dead link does: it has a host path and no status.
struct FoundPath {
  FileError error = FileError::kNone;  // kNotFound; kNotReady for a drive without its folder
  std::string host;
  bool ambiguous = false;  // a name is not there as spelled, but in several other spellings
};

struct PathStatus {
  FileError error = FileError::kNone;
  std::string host;
  struct stat status = {};  // links followed; meaningful when error is kNone
  bool dead_link = false;   // then error is kNotFound
};

// Where a name stands or would stand: what an operation that changes the disk has to know.
struct NamePlace {
  FileError error = FileError::kNone;  // the folder's; kAccessDenied for the root of a drive
  std::string folder;                  // host path
  std::string name;                    // host name: the disk's when it exists, else as spelled
  bool exists = false;
  bool ambiguous = false;  // also when the name as spelled is one of several

  std::string Host() const;
};

// Finds paths. All paths must have only Windows names. Refers to the PathNames, which must outlive
// it.
class PathLookup {
 public:
  PathLookup(DriveMap drives, const PathNames& names);

  // While it lives, FindPlace finds each folder and lists it only once: for many files.
  class Hold final : public FolderHold {
   public:
    explicit Hold(PathLookup& lookup) : lookup_(lookup) {
      ++lookup_.holds_;
      lookup_.variants_.Hold();
    }
    ~Hold() override {
      --lookup_.holds_;
      lookup_.held_folders_.clear();
      lookup_.variants_.LetGo();
    }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

   private:
    PathLookup& lookup_;
  };

  const DriveMap& drives() const { return drives_; }

  // The host path of a path in its own spelling, whether it exists or not; empty when the drive
  // does not exist.
  std::string Spelled(const WindowsPath& path) const;

  FoundPath Find(const WindowsPath& path);
  PathStatus Status(const WindowsPath& path);
  NamePlace FindPlace(const WindowsPath& path);

  // What has changed while folders are held: a file or a folder was made at this place, or anything
  // else.
  void Made(const NamePlace& place) { variants_.Added(place.folder, place.name); }
  void MadeFolder(const NamePlace& place) {
    held_folders_.clear();  // it may have been missing
    Made(place);
  }
  void Forget();

  // The host path with the disk's spelling as far as the path exists.
  std::string HostPath(const WindowsPath& path);

 private:
  std::string SpelledPart(const WindowsPath& path, std::size_t count) const;
  FoundPath FindPart(const WindowsPath& path, std::size_t count);
  FoundPath FindFolder(const WindowsPath& path);

  DriveMap drives_;
  const PathNames& names_;
  VariantFinder variants_;
  int holds_ = 0;
  std::unordered_map<std::string, FoundPath> held_folders_;  // by spelled host path
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_PATH_LOOKUP_H_
