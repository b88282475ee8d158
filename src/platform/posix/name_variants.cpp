#include "platform/posix/name_variants.h"

#include <cerrno>
#include <utility>

#include "platform/posix/host_directory.h"

namespace vellumark {
namespace {

// Enough for every folder that an operation goes through; then it starts anew.
constexpr std::size_t kMostFolders = 1024;

void Add(std::string_view host_name, NameVariants* variants) {
  if (variants->count == 0 || host_name < variants->first) variants->first = host_name;
  ++variants->count;
}

bool SameTime(const timespec& a, const timespec& b) {
  return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

NameVariants Failed(int error) {
  NameVariants variants;
  variants.error = error;
  return variants;
}

}  // namespace

VariantFinder::Stamp::Stamp(const struct stat& status)
    : device(status.st_dev),
      index(status.st_ino),
      modified(status.st_mtim),
      changed(status.st_ctim) {}

bool VariantFinder::Stamp::operator==(const Stamp& other) const {
  return device == other.device && index == other.index && SameTime(modified, other.modified) &&
         SameTime(changed, other.changed);
}

bool VariantFinder::Stamp::IsAtRest(std::time_t rest) const {
  timespec now = {};
  clock_gettime(CLOCK_REALTIME_COARSE, &now);
  return modified.tv_sec + rest < now.tv_sec && changed.tv_sec + rest < now.tv_sec;
}

NameVariants VariantFinder::Known(const VariantsByName& names, const std::string& folded) {
  const auto found = names.find(folded);
  return found == names.end() ? NameVariants{} : found->second;
}

void VariantFinder::LetGo() {
  --holds_;
  Forget();
}

void VariantFinder::Added(const std::string& host_folder, const std::string& host_name) {
  const auto held = held_.find(host_folder);
  if (held == held_.end()) return;
  Add(host_name, &held->second[names_.Fold(names_.FromHost(host_name).bytes)]);
}

NameVariants VariantFinder::Find(const std::string& host_folder, std::string_view name) {
  const std::string folded = names_.Fold(name);
  if (const auto held = held_.find(host_folder); held != held_.end()) {
    return Known(held->second, folded);
  }

  if (const auto known = folders_.find(host_folder); known != folders_.end()) {
    struct stat status = {};
    if (stat(host_folder.c_str(), &status) != 0) return Failed(errno);
    if (known->second.stamp == Stamp(status)) {
      return Known(known->second.by_folded_name, folded);
    }
    folders_.erase(known);
  }

  Directory directory = Directory::Open(host_folder);
  struct stat status = {};
  if (directory.error() != 0) return Failed(directory.error());
  if (fstat(directory.descriptor(), &status) != 0) return Failed(errno);

  // A folder that is just being changed is not worth remembering: one pass that keeps nothing.
  Remembered folder = {Stamp(status), {}};
  const bool remember = holds_ > 0 || folder.stamp.IsAtRest(rest_);
  NameVariants variants;
  while (const dirent* entry = directory.Next()) {
    if (names_.HostNameFoldsTo(entry->d_name, folded)) Add(entry->d_name, &variants);
    if (!remember) continue;
    const CoreName core = names_.FromHost(entry->d_name);
    if (core.use != NameUse::kUsable) continue;
    Add(entry->d_name, &folder.by_folded_name[names_.Fold(core.bytes)]);
  }
  if (directory.error() != 0) return Failed(directory.error());

  if (holds_ > 0) {
    held_.emplace(host_folder, std::move(folder.by_folded_name));
  } else if (remember) {
    if (folders_.size() >= kMostFolders) folders_.clear();
    folders_.emplace(host_folder, std::move(folder));
  }
  return variants;
}

}  // namespace vellumark
