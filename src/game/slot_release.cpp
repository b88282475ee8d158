#include "game/slot_release.h"

#include <algorithm>

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "savegames/slot_listing.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

class Releaser {
 public:
  Releaser(FileSystem& files, const std::string& game_folder, const std::string& subfolder,
           const SlotCopies& copies)
      : files_(files), game_folder_(game_folder), subfolder_(subfolder), copies_(copies) {}

  SlotRelease Release() {
    std::vector<std::string> written = copies_.targets;
    written.push_back(subfolder_);
    release_.flush = files_.Flush(written);
    if (release_.flush != FileError::kNone) return std::move(release_);

    const int highest = copies_.HighestCopiedSlot;
    for (int slot = 0; slot < highest; ++slot) {
      if (!FileExists(files_, InGame(SavegameFileName(slot))) || !Arrived(slot)) continue;
      DeleteCopied(SavegameFileName(slot));
      DeleteCopied(NoteFileName(slot));
      DeleteCopied(ShotFileName(slot));
    }
    if (!Arrived(highest)) return std::move(release_);
    KeepAsFirst(highest);
    DeleteCopied(NoteFileName(highest));
    DeleteCopied(ShotFileName(highest));
    return std::move(release_);
  }

 private:
  std::string InGame(const std::string& name) const { return InFolder(game_folder_, name); }

  // A note or screen-shot that stayed behind alone would become that of the slot's next savegame.
  bool Arrived(int slot) const {
    return std::ranges::none_of(copies_.failures, [slot](const Failure& failure) {
      const std::string name = FileNameOf(failure.path);
      return EqualsIgnoringAsciiCase(name, SavegameFileName(slot)) ||
             EqualsIgnoringAsciiCase(name, NoteFileName(slot)) ||
             EqualsIgnoringAsciiCase(name, ShotFileName(slot));
    });
  }

  // Deletes a file of the game folder, if it is there, once its copy is known to be safe.
  void DeleteCopied(const std::string& name) {
    const std::string path = InGame(name);
    if (!FileExists(files_, path)) return;

    FileError error = FileError::kInputOutput;
    if (SameContent(files_, path, InFolder(subfolder_, name))) {
      error = FileError::kNone;
      DeleteFileForced(files_, path, &error);
    }
    if (error != FileError::kNone) release_.not_deleted.push_back({path, error});
  }

  // The player goes on from the savegame of the highest slot.
  void KeepAsFirst(int highest) {
    if (highest == 0) return;
    release_.highest_file = InGame(SavegameFileName(highest));
    // A note or screen-shot that is still there would become that of another savegame.
    release_.first_taken =
        FileExists(files_, InGame(NoteFileName(0))) || FileExists(files_, InGame(ShotFileName(0)));
    if (release_.first_taken) return;
    const std::string first = game_folder_ + LoadMessage(327);
    release_.rename = files_.Rename(release_.highest_file, first, RenameMode::kRefuseExisting);
  }

  FileSystem& files_;
  const std::string& game_folder_;
  const std::string& subfolder_;
  const SlotCopies& copies_;
  SlotRelease release_;
};

}  // namespace

SlotRelease ReleaseCopiedSlots(FileSystem& files, const std::string& game_folder,
                               const std::string& subfolder, const SlotCopies& copies) {
  return Releaser(files, game_folder, subfolder, copies).Release();
}

}  // namespace vellumark
