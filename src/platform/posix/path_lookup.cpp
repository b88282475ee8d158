#include "platform/posix/path_lookup.h"

#include <cerrno>
#include <utility>

#include "platform/posix/file_error.h"

namespace vellumark {
namespace {

std::string Join(const std::string& folder, const std::string& name) {
  return folder.back() == '/' ? folder + name : folder + '/' + name;
}

bool IsMissing(int number) { return number == ENOENT || number == ENOTDIR; }

// 0 when something of that name exists, a dead link included.
int Look(const std::string& host) {
  struct stat status = {};
  return lstat(host.c_str(), &status) == 0 ? 0 : errno;
}

bool AreTheSame(const std::string& a, const std::string& b) {
  struct stat first = {};
  struct stat second = {};
  return lstat(a.c_str(), &first) == 0 && lstat(b.c_str(), &second) == 0 &&
         first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

FoundPath NotFound(FileError error) { return {error, {}, false}; }

FoundPath FindRoot(const std::string& root) {
  struct stat status = {};
  if (stat(root.c_str(), &status) != 0) {
    return NotFound(IsMissing(errno) ? FileError::kNotReady : FileErrorFromNumber(errno));
  }
  if (!S_ISDIR(status.st_mode)) return NotFound(FileError::kNotReady);
  return {FileError::kNone, root, false};
}

}  // namespace

std::string NamePlace::Host() const { return Join(folder, name); }

PathLookup::PathLookup(DriveMap drives, const PathNames& names)
    : drives_(std::move(drives)), names_(names), variants_(names) {}

std::string PathLookup::Spelled(const WindowsPath& path) const {
  return SpelledPart(path, path.names.size());
}

std::string PathLookup::SpelledPart(const WindowsPath& path, std::size_t count) const {
  const auto root = drives_.roots.find(path.drive);
  if (root == drives_.roots.end()) return {};

  std::string host = root->second;
  for (std::size_t i = 0; i < count; ++i) host = Join(host, names_.ToHost(path.names[i]));
  return host;
}

FoundPath PathLookup::Find(const WindowsPath& path) { return FindPart(path, path.names.size()); }

FoundPath PathLookup::FindPart(const WindowsPath& path, std::size_t count) {
  const std::string spelled = SpelledPart(path, count);
  if (spelled.empty()) return NotFound(FileError::kNotFound);
  if (count == 0) return FindRoot(spelled);

  const int failure = Look(spelled);
  if (failure == 0) return {FileError::kNone, spelled, false};
  if (!IsMissing(failure)) return NotFound(FileErrorFromNumber(failure));

  FoundPath folder = FindPart(path, count - 1);
  if (folder.error != FileError::kNone) return folder;

  // In a folder that is spelled differently on the disk, the name as spelled still goes first.
  const std::string& name = path.names[count - 1];
  std::string as_spelled = Join(folder.host, names_.ToHost(name));
  if (as_spelled != spelled && Look(as_spelled) == 0) {
    return {FileError::kNone, std::move(as_spelled), folder.ambiguous};
  }

  const NameVariants variants = variants_.Find(folder.host, name);
  if (variants.error != 0) return NotFound(FileErrorFromNumber(variants.error));
  if (variants.count == 0) return NotFound(FileError::kNotFound);
  return {FileError::kNone, Join(folder.host, variants.first),
          folder.ambiguous || variants.count > 1};
}

// The folder that holds, or would hold, what the path names.
FoundPath PathLookup::FindFolder(const WindowsPath& path) {
  const std::size_t count = path.names.size() - 1;
  if (holds_ == 0) return FindPart(path, count);

  const auto [known, is_new] = held_folders_.try_emplace(SpelledPart(path, count));
  if (is_new) known->second = FindPart(path, count);
  return known->second;
}

void PathLookup::Forget() {
  held_folders_.clear();
  variants_.Forget();
}

PathStatus PathLookup::Status(const WindowsPath& path) {
  PathStatus result;
  result.host = Spelled(path);
  if (!path.names.empty() && stat(result.host.c_str(), &result.status) == 0) return result;

  FoundPath found = Find(path);
  result.error = found.error;
  result.host = std::move(found.host);
  if (result.error != FileError::kNone) return result;

  if (stat(result.host.c_str(), &result.status) != 0) {
    result.dead_link = IsMissing(errno) || errno == ELOOP;
    result.error = result.dead_link ? FileError::kNotFound : FileErrorFromNumber(errno);
  }
  return result;
}

NamePlace PathLookup::FindPlace(const WindowsPath& path) {
  NamePlace place;
  if (path.names.empty()) {
    place.error = Find(path).error;
    if (place.error == FileError::kNone) place.error = FileError::kAccessDenied;
    return place;
  }

  FoundPath folder = FindFolder(path);
  place.error = folder.error;
  if (place.error != FileError::kNone) return place;
  place.folder = std::move(folder.host);
  place.name = names_.ToHost(path.names.back());
  place.ambiguous = folder.ambiguous;

  const int failure = Look(place.Host());
  place.exists = failure == 0;
  if (failure != 0 && failure != ENOENT) {
    place.error = FileErrorFromNumber(failure);
    return place;
  }

  // What stands in the folder decides, not only what answers to the spelling: the name may be
  // there twice, and the disk itself may not tell letter case apart.
  NameVariants variants = variants_.Find(place.folder, path.names.back());
  if (variants.error != 0) {
    place.error = FileErrorFromNumber(variants.error);
    return place;
  }
  if (variants.count > 1) place.ambiguous = true;
  if (variants.count == 1 && place.exists && variants.first != place.name) {
    const bool same = AreTheSame(place.Host(), Join(place.folder, variants.first));
    if (!same) place.ambiguous = true;
  }
  const bool take_disk_spelling = !place.exists || !place.ambiguous;
  if (variants.count > 0 && take_disk_spelling) place.name = std::move(variants.first);
  place.exists = place.exists || variants.count > 0;
  return place;
}

std::string PathLookup::HostPath(const WindowsPath& path) {
  std::size_t count = path.names.size();
  FoundPath found = FindPart(path, count);
  while (found.error != FileError::kNone && count > 0) found = FindPart(path, --count);
  if (found.error != FileError::kNone) return Spelled(path);

  for (; count < path.names.size(); ++count) {
    found.host = Join(found.host, names_.ToHost(path.names[count]));
  }
  return found.host;
}

}  // namespace vellumark
