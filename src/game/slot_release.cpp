#include "game/slot_release.h"

#include <algorithm>

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/paths.h"
#include "savegames/slot_listing.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

class Releaser {
 public:
  Releaser(FileSystem& files, const std::string& game_folder, const std::string& subfolder,
           SlotCopies& copies)
      : files_(files), game_folder_(game_folder), subfolder_(subfolder), copies_(copies) {}

  SlotRelease Release() {
    std::vector<std::string> written = copies_.targets;
    written.push_back(subfolder_);
    release_.flush = files_.Flush(written);
    const int highest = copies_.HighestCopiedSlot;
    for (int slot = 0; slot < highest; ++slot) {
      if (!FileExists(files_, InGame(SavegameFileName(slot)))) continue;
      DeleteCopied(SavegameFileName(slot));
      DeleteCopied(NoteFileName(slot));
      DeleteCopied(ShotFileName(slot));
    }
    KeepAsFirst(highest);
    DeleteCopied(NoteFileName(highest));
    DeleteCopied(ShotFileName(highest));
    return std::move(release_);
  }

 private:
  std::string InGame(const std::string& name) const { return InFolder(game_folder_, name); }

  bool FailedToCopy(const std::string& path) const {
    return std::ranges::find(copies_.failures, path, &Failure::path) != copies_.failures.end();
  }

  // Deletes a file of the game folder, if it is there, once its copy is known to be safe.
  void DeleteCopied(const std::string& name) {
    const std::string path = InGame(name);
    if (release_.flush != FileError::kNone || FailedToCopy(path)) return;
    if (!FileExists(files_, path)) return;

    FileError error = FileError::kInputOutput;
    if (SameContent(files_, path, InFolder(subfolder_, name))) error = files_.Delete(path);
    if (error != FileError::kNone) release_.not_deleted.push_back({path, error});
  }

  // The player goes on from the savegame of the highest slot.
  void KeepAsFirst(int highest) {
    if (highest == 0) return;
    release_.highest_file = InGame(SavegameFileName(highest));
    const std::string first = game_folder_ + LoadMessage(327);
    release_.rename = files_.Rename(release_.highest_file, first, RenameMode::kRefuseExisting);
    if (release_.rename != FileError::kNone) return;
    for (Failure& failure : copies_.failures) {
      if (failure.path == release_.highest_file) failure.path = first;
    }
  }

  FileSystem& files_;
  const std::string& game_folder_;
  const std::string& subfolder_;
  SlotCopies& copies_;
  SlotRelease release_;
};

}  // namespace

SlotRelease ReleaseCopiedSlots(FileSystem& files, const std::string& game_folder,
                               const std::string& subfolder, SlotCopies& copies) {
  return Releaser(files, game_folder, subfolder, copies).Release();
}

}  // namespace vellumark
