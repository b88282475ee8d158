#include "maintenance/old_archive.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <optional>
#include <unordered_map>
#include <utility>

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/strings.h"
#include "platform/text.h"
#include "program.h"
#include "savegames/info_file.h"
#include "savegames/savegame_header.h"
#include "savegames/slot_listing.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

class OldArchiveDeletion {
 public:
  OldArchiveDeletion(Program& program, const NewArchive& made, Rescue& rescue)
      : program_(program), files_(program.files), made_(made), rescue_(rescue) {
    const auto& entries = program.catalogue.entries;
    for (std::size_t i = 0; i < entries.size(); ++i) {
      if (entries[i].FolderNumber == 0) continue;
      index_of_.emplace(program.text.LowerPath(entries[i].SavegamePath), i);
    }
    Protect(Trimmed(program.archive.settings.GameFolder));
    Protect(program.play.BackupFolder);
    Protect(program.paths.ProgramFolder);
    for (int number = 1; number <= made.plan().folders; ++number) Protect(made.Folder(number));
  }

  void DeleteFolder(const OldSubfolder& folder) {
    if (IsNeeded(folder)) return Keep(folder.path, LoadMessage(kOldFolderNeeded));
    const Listing listing = files_.List(InFolder(folder.path, "*"));
    if (listing.error != FileError::kNone) return Keep(folder.path, ReasonFor(listing.error));

    folder_ = folder.path;
    to_delete_.clear();
    to_set_aside_.clear();
    const std::size_t kept_before = kept_.size();
    if (!listing.unusable.empty()) Keep(folder_, LoadMessage(kOldHoldsUnusable));
    SortOut(listing);
    MoveAway();
    DeleteFiles();
    if (kept_.size() != kept_before) return;
    const FileError error = files_.RemoveFolder(folder_);
    if (error != FileError::kNone) Keep(folder_, ReasonFor(error));
  }

  std::vector<KeptItem> TakeKept() { return std::move(kept_); }

 private:
  void Protect(const std::string& folder) {
    if (const auto identity = files_.Identity(folder)) protected_.push_back(*identity);
  }

  // Never a folder that is anything else besides, under whatever name.
  bool IsNeeded(const OldSubfolder& folder) {
    const auto identity = files_.Identity(folder.path);
    if (folder.ambiguous || !identity) return true;
    return std::ranges::find(protected_, *identity) != protected_.end();
  }

  void Keep(const std::string& path, const std::string& reason) { kept_.push_back({path, reason}); }

  // Decides for each name in the folder whether it goes, is set aside or stays.
  void SortOut(const Listing& listing) {
    std::vector<const FolderEntry*> of_slots;
    for (const Slot& slot : SlotsOf(listing, std::numeric_limits<int>::max()).slots) {
      SortOut(slot);
      of_slots.insert(of_slots.end(), {slot.savegame, slot.note, slot.shot});
    }
    for (const FolderEntry& entry : listing.entries) {
      if (std::ranges::find(of_slots, &entry) != of_slots.end()) continue;
      const std::string path = InFolder(folder_, entry.name);
      if (entry.folder || !entry.plain || entry.ambiguous) {
        Keep(path, entry.ambiguous ? ReasonFor(FileError::kAmbiguous)
                                   : LoadMessage(entry.folder ? kOldIsFolder : kOldIsNoFile));
      } else {
        const bool own = IsTemporaryName(entry.name) || IsOwnInfoFile(entry.name);
        (own ? to_delete_ : to_set_aside_).push_back(path);
      }
    }
  }

  bool IsOwnInfoFile(const std::string& name) {
    return EqualsIgnoringAsciiCase(name, FileNameOf(LoadMessage(195))) &&
           HoldsInfoSection(program_, folder_, InFolder(folder_, name));
  }

  void SortOut(const Slot& slot) {
    const std::string savegame = InFolder(folder_, slot.savegame->name);
    const auto found =
        index_of_.find(program_.text.LowerPath(InFolder(folder_, SavegameFileName(slot.number))));
    const SavegameFate fate =
        found == index_of_.end() ? SavegameFate() : made_.plan().fates[found->second];
    const std::pair<const FolderEntry*, std::string> files[] = {
        {slot.savegame, SavegameFileName(fate.slot)},
        {slot.note, NoteFileName(fate.slot)},
        {slot.shot, ShotFileName(fate.slot)}};
    const auto has_copy = [&](const auto& file) {
      return file.first == nullptr || SameContent(files_, InFolder(folder_, file.first->name),
                                                  InFolder(made_.Folder(fate.folder), file.second));
    };
    const bool dropped = fate.kind == SavegameFate::Kind::kDropped;
    const bool safe =
        fate.kind == SavegameFate::Kind::kCopied && std::ranges::all_of(files, has_copy);
    if (!safe && !(dropped && IsStill(program_.catalogue.entries[found->second], savegame))) {
      return Keep(savegame, LoadMessage(kOldNotInNew));
    }
    // One that only counted as equal takes with it what belongs to it.
    const bool equal = safe || has_copy(files[0]);
    for (const auto& file : files) {
      if (file.first == nullptr) continue;
      const bool goes = safe || (equal && has_copy(file));
      (goes ? to_delete_ : to_set_aside_).push_back(InFolder(folder_, file.first->name));
    }
  }

  // Whether the file still has the level and counter by which the savegame counted as equal.
  bool IsStill(const SavegameEntry& entry, const std::string& path) {
    const SavegameHeader header = ReadSavegameHeader(files_, path);
    return header.whole && header.level_name == entry.LevelName &&
           header.counter == entry.InternalCounter;
  }

  void MoveAway() {
    const std::size_t failed_before = rescue_.failures().size();
    rescue_.Take(to_set_aside_, kWhyNotInNewArchive, FileNameOf(folder_));
    for (std::size_t i = failed_before; i < rescue_.failures().size(); ++i) {
      const Failure& failure = rescue_.failures()[i];
      Keep(failure.path, LoadMessage(kOldNotMoved, {ReasonFor(failure.why)}));
    }
  }

  void DeleteFiles() {
    const std::vector<FileError> errors = files_.DeleteAll(to_delete_);
    for (std::size_t i = 0; i < errors.size(); ++i) {
      if (errors[i] != FileError::kNone) {
        Keep(to_delete_[i], LoadMessage(kOldNotDeleted, {ReasonFor(errors[i])}));
      }
    }
  }

  Program& program_;
  FileSystem& files_;
  const NewArchive& made_;
  std::unordered_map<std::string, std::size_t> index_of_;  // catalogue indices by path
  std::vector<FileIdentity> protected_;
  Rescue& rescue_;
  std::vector<KeptItem> kept_;
  std::string folder_;  // the one at hand, and what becomes of its files
  std::vector<std::string> to_delete_;
  std::vector<std::string> to_set_aside_;
};

}  // namespace

OldArchive FindOldArchive(Program& program) {
  const ArchiveSettings& settings = program.archive.settings;
  const std::string stem =
      InFolder(Trimmed(settings.MainFolder), Trimmed(settings.SubfolderBaseName));
  const auto parent = program.files.OpenFolder(FolderOf(stem));
  const Listing& listing = parent->Contents();
  OldArchive old;
  if (listing.error != FileError::kNotFound) old.error = listing.error;

  std::unordered_map<std::string, const FolderEntry*> by_name;
  for (const FolderEntry& entry : listing.entries) {
    by_name.emplace(program.text.LowerPath(entry.name), &entry);
  }
  for (int number = 1;; ++number) {
    const std::string path = stem + std::to_string(number);
    const auto found = by_name.find(program.text.LowerPath(FileNameOf(path)));
    if (found == by_name.end() || !found->second->folder) return old;
    old.folders.push_back({path, found->second->ambiguous});
  }
}

std::vector<KeptItem> DeleteOldArchive(Program& program, const OldArchive& old,
                                       const NewArchive& made, Rescue& rescue,
                                       const ShowPercent& show) {
  OldArchiveDeletion deletion(program, made, rescue);
  int number = 0;
  for (const OldSubfolder& folder : old.folders) {
    show(DeletingPercent(++number, program.catalogue.FolderCount));
    deletion.DeleteFolder(folder);
  }
  return deletion.TakeKept();
}

}  // namespace vellumark
