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

}  // namespace

SlotCopies CopySlots(FileSystem& files, const std::string& source, const std::string& target,
                     int max_savegame) {
  SlotCopies copies;
  const auto copy = [&](const std::string& name) {
    const std::string from = InFolder(source, name);
    const std::string to = InFolder(target, name);
    FileError why = FileError::kNone;
    const bool copied = CopyFileReplacing(files, from, to, &why);
    if (copied) {
      copies.targets.push_back(to);
    } else {
      copies.failures.push_back(FailureOfCopy(files, from, to, why));
    }
    return copied;
  };

  const Listing listing = files.List(InFolder(source, "*"));
  const SlotListing found = SlotsOf(listing, max_savegame);
  for (const std::string& name : found.ambiguous) {
    copies.failures.push_back({InFolder(source, name), FileError::kAmbiguous});
  }
  for (const Slot& slot : found.slots) {
    ++copies.count;
    copies.HighestCopiedSlot = static_cast<std::int16_t>(slot.number);
    if (!copy(SavegameFileName(slot.number))) continue;
    if (slot.note != nullptr) copy(NoteFileName(slot.number));
    if (slot.shot != nullptr) copy(ShotFileName(slot.number));
  }
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
