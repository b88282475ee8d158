#include "maintenance/reorder_copying.h"

#include <optional>
#include <utility>

#include "foundation/messages.h"
#include "foundation/paths.h"
#include "foundation/working.h"
#include "maintenance/reorder_order.h"
#include "maintenance/reorder_plan.h"
#include "program.h"
#include "savegames/info_file.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

// Finds the disk's spelling of a catalogue's paths, which are in lower case: a file is found much
// faster by it.
class DiskSpelling {
 public:
  explicit DiskSpelling(FileSystem& files) : files_(files) {}

  std::string Of(const std::string& path) {
    const std::string folder = FolderOf(path);
    if (folder != folder_) {
      folder_ = folder;
      spelled_ = files_.FromHostPath(files_.HostPath(folder)).value_or(folder);
    }
    return InFolder(spelled_, FileNameOf(path));
  }

 private:
  FileSystem& files_;
  std::string folder_;
  std::string spelled_;
};

class Copying {
 public:
  Copying(Program& program, const ReorderSettings& settings, const ReorderTarget& target)
      : program_(program),
        files_(program.files),
        settings_(settings),
        target_(target),
        plan_(settings),
        spelling_(program.files) {
    made_.fates.resize(program.catalogue.entries.size());
  }

  NewArchive Run(const std::vector<std::size_t>& order, const ShowPercent& show) {
    const auto hold = files_.HoldFolders();
    const auto count = static_cast<int>(order.size());
    for (int position = 0; position < count && !made_.stopped; ++position) {
      show(CopyingPercent(position, count, settings_.DeleteOldArchive));
      if (IsEnding(program_)) {
        made_.stopped = {target_.Subfolder(plan_.folders() + 1), FileError::kStopped};
        break;
      }
      Place(order[static_cast<std::size_t>(position)]);
    }
    if (!made_.stopped) FinishFolder();
    return std::move(made_);
  }

 private:
  void Place(std::size_t index) {
    const SavegameEntry& entry = program_.catalogue.entries[index];
    SavegameFate& fate = made_.fates[index];
    if (const auto equal = EqualOf(entry)) {
      ++made_.equals;
      if (entry.FolderNumber == 0) return;
      fate = made_.fates[*equal];
      fate.kind = SavegameFate::Kind::kDropped;
      return;
    }
    if (entry.FolderNumber == 0) return;
    if (plan_.NeedsNewFolder(entry.LevelName) && !StartFolder()) return;

    fate.kind = SavegameFate::Kind::kCopied;
    fate.folder = made_.folders.size() - 1;
    fate.slot = plan_.TakeSlot(entry.LevelName);
    // An equal savegame may be dropped only for one that has really arrived.
    if (CopyEntry(entry, fate.slot)) arrived_.Add(entry.LevelName, entry.InternalCounter, index);
    ++made_.copied;
  }

  // The index of the savegame in the new archive for which this one is dropped.
  std::optional<std::size_t> EqualOf(const SavegameEntry& entry) const {
    if (!settings_.RemoveEquals) return std::nullopt;
    return arrived_.Find(entry.LevelName, entry.InternalCounter);
  }

  bool StartFolder() {
    FinishFolder();
    plan_.BeginFolder();
    const std::string folder = target_.Subfolder(plan_.folders());
    const FileError error = files_.CreateFolder(folder);
    if (error != FileError::kNone) {
      made_.stopped = {folder, error};
      return false;
    }
    made_.folders.push_back(folder);
    made_.written.push_back(folder);
    return true;
  }

  void FinishFolder() {
    if (!settings_.CreateInfoFiles || made_.folders.empty()) return;
    const std::string& folder = made_.folders.back();
    const std::string info_file = folder + LoadMessage(195);
    const FileError error = WriteInfoSection(program_, folder, info_file, InfoMode::kCreate).error;
    if (error != FileError::kNone) made_.not_listed.push_back({info_file, error});
  }

  // True when the savegame itself has arrived.
  bool CopyEntry(const SavegameEntry& entry, int slot) {
    const bool arrived = CopyFile(spelling_.Of(entry.SavegamePath), SavegameFileName(slot));
    CopyIfThere(spelling_.Of(entry.NotePath), NoteFileName(slot));
    CopyIfThere(spelling_.Of(entry.ShotPath), ShotFileName(slot));
    return arrived;
  }

  // One of which the disk does not tell whether it is there must not count as missing.
  void CopyIfThere(const std::string& source, const std::string& name) {
    const AttributesResult found = files_.Attributes(source);
    if (found.error == FileError::kNone) {
      if (found.attributes.IsPlainFile()) CopyFile(source, name);
    } else if (found.error != FileError::kNotFound && found.error != FileError::kAmbiguous) {
      made_.not_copied.push_back({source, found.error});
    }
  }

  bool CopyFile(const std::string& source, const std::string& name) {
    std::string copy = InFolder(made_.folders.back(), name);
    // Nothing is replaced, so it needs no detour over a temporary name.
    const FileError error = files_.CopyVerified(source, copy);
    if (error != FileError::kNone) {
      made_.not_copied.push_back({source, error});
      return false;
    }
    made_.written.push_back(std::move(copy));
    return true;
  }

  Program& program_;
  FileSystem& files_;
  const ReorderSettings& settings_;
  const ReorderTarget& target_;
  SubfolderPlan plan_;
  DiskSpelling spelling_;
  KnownSavegames arrived_;
  NewArchive made_;
};

}  // namespace

NewArchive CopyInOrder(Program& program, const ReorderSettings& settings,
                       const ReorderTarget& target, const std::vector<std::size_t>& order,
                       const ShowPercent& show) {
  return Copying(program, settings, target).Run(order, show);
}

}  // namespace vellumark
