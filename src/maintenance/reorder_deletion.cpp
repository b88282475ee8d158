#include "maintenance/reorder_deletion.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <unordered_map>
#include <utility>

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/rescue.h"
#include "foundation/strings.h"
#include "maintenance/reorder_plan.h"
#include "platform/text.h"
#include "program.h"
#include "savegames/savegame_header.h"
#include "savegames/slot_listing.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

// What is to be done with the files of one old sub-folder.
struct FolderContents {
  std::string blocked;  // why the sub-folder stays whole; empty when it can go
  std::vector<std::string> to_delete;
  std::vector<std::string> strange;  // files that no savegame of the new archive has
};

class OldArchiveDeletion {
 public:
  OldArchiveDeletion(Program& program, const NewArchive& made)
      : program_(program), files_(program.files), made_(made) {
    const auto& entries = program.catalogue.entries;
    for (std::size_t i = 0; i < entries.size(); ++i) {
      if (entries[i].FolderNumber == 0) continue;
      index_of_.emplace(program.text.LowerPath(entries[i].SavegamePath), i);
    }
    Protect(Trimmed(program.archive.settings.GameFolder));
    Protect(program.play.BackupFolder);
    Protect(program.paths.ProgramFolder);
    for (const std::string& folder : made.folders) Protect(folder);
  }

  void DeleteFolder(const OldSubfolder& folder) {
    std::string reason = IsNeeded(folder) ? LoadMessage(kOldFolderNeeded) : std::string();
    FolderContents contents;
    if (reason.empty()) {
      contents = Examine(folder.path);
      reason = contents.blocked;
    }
    if (reason.empty()) reason = MoveAway(contents.strange);
    if (reason.empty()) reason = DeleteFiles(folder.path, contents.to_delete);
    if (!reason.empty()) result_.kept.push_back({folder.path, reason});
  }

  Deletion TakeResult() { return std::move(result_); }

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

  FolderContents Examine(const std::string& folder) {
    const Listing listing = files_.List(InFolder(folder, "*"));
    if (listing.error != FileError::kNone) return Blocked(ReasonFor(listing.error));
    if (!listing.unusable.empty()) return Blocked(LoadMessage(kOldHoldsUnusable));

    FolderContents contents;
    const SlotListing found = SlotsOf(listing, std::numeric_limits<int>::max());
    std::vector<const FolderEntry*> of_savegames;
    for (const Slot& slot : found.slots) {
      if (const auto problem = ProblemWith(folder, slot)) {
        return Blocked(LoadMessage(kOldHoldsSavegame, {Quoted(*problem)}));
      }
      of_savegames.push_back(slot.savegame);
      for (const FolderEntry* companion : {slot.note, slot.shot}) {
        if (companion == nullptr) continue;
        if (IsDropped(folder, slot) && !HasCopy(folder, slot, *companion)) continue;
        of_savegames.push_back(companion);
      }
    }
    for (const FolderEntry& entry : listing.entries) {
      if (entry.folder || !entry.plain || entry.ambiguous) {
        return Blocked(LoadMessage(kOldHoldsOther, {Quoted(entry.name)}));
      }
      const bool known = std::ranges::find(of_savegames, &entry) != of_savegames.end() ||
                         EqualsIgnoringAsciiCase(entry.name, FileNameOf(LoadMessage(195))) ||
                         IsTemporaryName(entry.name);
      (known ? contents.to_delete : contents.strange).push_back(InFolder(folder, entry.name));
    }
    return contents;
  }

  static FolderContents Blocked(std::string reason) { return {std::move(reason), {}, {}}; }

  // The catalogue index of the slot's savegame.
  std::optional<std::size_t> IndexOf(const std::string& folder, const Slot& slot) {
    const auto found =
        index_of_.find(program_.text.LowerPath(InFolder(folder, SavegameFileName(slot.number))));
    return found == index_of_.end() ? std::nullopt : std::optional(found->second);
  }

  bool IsDropped(const std::string& folder, const Slot& slot) {
    return made_.fates[*IndexOf(folder, slot)].kind == SavegameFate::Kind::kDropped;
  }

  // The name of the slot's first file that is not safe in the new archive.
  std::optional<std::string> ProblemWith(const std::string& folder, const Slot& slot) {
    const auto index = IndexOf(folder, slot);
    const std::string& name = slot.savegame->name;
    if (!index) return name;

    switch (made_.fates[*index].kind) {
      case SavegameFate::Kind::kLeft:
        return name;
      case SavegameFate::Kind::kDropped:
        return IsStill(program_.catalogue.entries[*index], InFolder(folder, name))
                   ? std::nullopt
                   : std::optional(name);
      case SavegameFate::Kind::kCopied:
        break;
    }
    for (const FolderEntry* entry : {slot.savegame, slot.note, slot.shot}) {
      if (entry != nullptr && !HasCopy(folder, slot, *entry)) return entry->name;
    }
    return std::nullopt;
  }

  // Whether a file of a slot is equal to that of the savegame in the new archive. Of one that was
  // dropped, the note and the screen-shot may be others than those of its equal.
  bool HasCopy(const std::string& folder, const Slot& slot, const FolderEntry& entry) {
    const SavegameFate& fate = made_.fates[*IndexOf(folder, slot)];
    const std::string copy = &entry == slot.savegame ? SavegameFileName(fate.slot)
                             : &entry == slot.note   ? NoteFileName(fate.slot)
                                                     : ShotFileName(fate.slot);
    return SameContent(files_, InFolder(folder, entry.name),
                       InFolder(made_.folders[fate.folder], copy));
  }

  // A dropped savegame has no copy to compare with, only its level and counter.
  bool IsStill(const SavegameEntry& entry, const std::string& path) {
    const SavegameHeader header = ReadSavegameHeader(files_, path);
    return header.whole && header.level_name == entry.LevelName &&
           header.counter == entry.InternalCounter;
  }

  std::string MoveAway(const std::vector<std::string>& strange) {
    if (strange.empty()) return {};
    Rescue rescue(program_);
    rescue.Take(strange, kWhyNotInNewArchive);
    if (!rescue.folder().empty()) result_.set_aside.push_back(rescue.folder());
    if (rescue.failures().empty()) return {};
    const Failure& first = rescue.failures().front();
    return LoadMessage(kOldNotMoved, {Quoted(FileNameOf(first.path)), ReasonFor(first.why)});
  }

  std::string DeleteFiles(const std::string& folder, const std::vector<std::string>& paths) {
    std::string reason;
    for (const std::string& path : paths) {
      const FileError error = files_.Delete(path);
      if (error == FileError::kNone || !reason.empty()) continue;
      reason = LoadMessage(kOldNotDeleted, {Quoted(FileNameOf(path)), ReasonFor(error)});
    }
    if (!reason.empty()) return reason;
    const FileError error = files_.RemoveFolder(folder);
    return error == FileError::kNone ? std::string() : ReasonFor(error);
  }

  Program& program_;
  FileSystem& files_;
  const NewArchive& made_;
  std::unordered_map<std::string, std::size_t> index_of_;  // catalogue indices by path
  std::vector<FileIdentity> protected_;
  Deletion result_;
};

}  // namespace

Deletion DeleteOldArchive(Program& program, const OldArchive& old, const NewArchive& made,
                          const ShowPercent& show) {
  OldArchiveDeletion deletion(program, made);
  int number = 0;
  for (const OldSubfolder& folder : old.folders) {
    show(DeletingPercent(++number, program.catalogue.FolderCount));
    deletion.DeleteFolder(folder);
  }
  return deletion.TakeResult();
}

}  // namespace vellumark
