#include "savegames/slot_folders.h"

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/paths.h"
#include "savegames/slot_listing.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

FileError AddMatching(FileSystem& files, const std::string& folder, const std::string& pattern,
                      std::vector<std::string>& paths) {
  const Listing listing = files.List(folder + pattern);
  for (const FolderEntry& entry : listing.entries) {
    if (entry.plain) paths.push_back(InFolder(folder, entry.name));
  }
  return listing.error;
}

void TakeResults(FileSystem& files, const CopyGroup& group, SlotCopies& copies) {
  for (const CopyJob& job : group) {
    if (job.error == FileError::kNone) {
      copies.targets.push_back(job.target);
      continue;
    }
    copies.failures.push_back(FailureOfCopy(files, job.source, job.target, job.error));
    // The others have stayed behind with the savegame.
    if (&job == &group.front()) return;
  }
}

}  // namespace

SlotCopies CopySlots(FileSystem& files, const std::string& source, const std::string& target,
                     int max_savegame, const std::function<void(int done, int all)>& show) {
  SlotCopies copies;
  const Listing listing = files.List(InFolder(source, "*"));
  const SlotListing found = SlotsOf(listing, max_savegame);
  for (const std::string& name : found.ambiguous) {
    copies.failures.push_back({InFolder(source, name), FileError::kAmbiguous});
  }
  std::vector<CopyGroup> groups;
  for (const Slot& slot : found.slots) {
    ++copies.count;
    copies.HighestCopiedSlot = static_cast<std::int16_t>(slot.number);
    CopyGroup& group = groups.emplace_back();
    const auto add = [&](const std::string& name) {
      group.push_back({InFolder(source, name), InFolder(target, name)});
    };
    add(SavegameFileName(slot.number));
    if (slot.note != nullptr) add(NoteFileName(slot.number));
    if (slot.shot != nullptr) add(ShotFileName(slot.number));
  }
  CopyAllReplacing(files, groups, [&](std::size_t i) {
    if (show) show(static_cast<int>(i), static_cast<int>(groups.size()));
    return true;
  });
  for (const CopyGroup& group : groups) TakeResults(files, group, copies);
  return copies;
}

std::vector<Failure> ClearSlots(FileSystem& files, const std::string& folder) {
  std::vector<Failure> failures;
  for (const std::string& path : FilesOfSlots(files, folder)) {
    const FileError error = files.Delete(path);
    if (error != FileError::kNone) failures.push_back({path, error});
  }
  return failures;
}

std::vector<std::string> FilesOfSlots(FileSystem& files, const std::string& folder,
                                      FileError* why) {
  std::vector<std::string> paths;
  FileError first_error = FileError::kNone;
  for (const int pattern : {314, 316, 318}) {
    const FileError error = AddMatching(files, folder, LoadMessage(pattern), paths);
    if (first_error == FileError::kNone) first_error = error;
  }
  if (why != nullptr) *why = first_error;
  return paths;
}

}  // namespace vellumark
