#include "savegames/copy_selected.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "foundation/file_utilities.h"
#include "foundation/messages.h"
#include "foundation/paths.h"
#include "foundation/rescue.h"
#include "foundation/windows_interface.h"
#include "foundation/work_scope.h"
#include "platform/text.h"
#include "program.h"
#include "savegames/file_removal.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

struct CopiedFile {
  std::string from;
  std::string to;
};

using CopiedSavegame = std::vector<CopiedFile>;

class Copier {
 public:
  Copier(Program& program, const std::string& folder, CopyMode mode)
      : program_(program),
        files_(program.files),
        folder_(folder),
        folder_key_(FolderKey(folder)),
        mode_(mode),
        rescue_(program) {}

  SelectedCopies Copy(const std::vector<SavegameFiles>& savegames, bool renumber) {
    const auto hold = files_.HoldFolders();
    const bool probe = renumber && FileExists(files_, folder_ + LoadMessage(308));
    const auto lies_here = [this](const SavegameFiles& savegame) {
      return LiesInTarget(savegame.savegame);
    };
    // What is moved within the folder gives its number back for the next.
    const bool one_by_one = std::ranges::any_of(savegames, lies_here);
    count_ = savegames.size();

    for (std::size_t position = 0; position < count_; ++position) {
      const SavegameFiles& savegame = savegames[position];
      int slot = renumber ? static_cast<int>(position) : savegame.slot;
      // Only where no number depends on what has become of the savegames before.
      if (!one_by_one && !probe && AddToBulk(savegame, slot)) continue;
      CopyBulk();
      program_.windows.ShowProgress(static_cast<int>(begun_++), static_cast<int>(count_));
      FileError no_number = probe ? FindFreeNumber(slot) : FileError::kNone;
      if (IsEnding(program_)) no_number = FileError::kStopped;
      if (no_number != FileError::kNone) {
        copies_.not_copied.push_back({savegame.savegame, no_number});
        continue;
      }
      const auto copied = CopyOne(savegame, slot);
      if (mode_ == CopyMode::kCopy || !copied) continue;
      if (!one_by_one) {
        moved_.push_back(*copied);
        continue;
      }
      DeleteSources({*copied});
      if (lies_here(savegame)) lowest_free_ = std::min<int>(lowest_free_, savegame.slot);
    }
    CopyBulk();
    if (!moved_.empty()) DeleteSources(moved_);
    copies_.rescue_folder = rescue_.folder();
    return std::move(copies_);
  }

 private:
  // What makes two spellings of a folder the same.
  std::string FolderKey(const std::string& folder) {
    const auto [known, is_new] = folder_keys_.try_emplace(folder);
    if (is_new) {
      const auto identity = files_.Identity(folder);
      known->second = identity ? std::to_string(identity->device)
                                     .append(1, '/')
                                     .append(std::to_string(identity->index))
                               : program_.text.LowerPath(folder);
    }
    return known->second;
  }

  std::string FileKey(const std::string& path) {
    return InFolder(FolderKey(FolderOf(path)), program_.text.LowerPath(FileNameOf(path)));
  }

  bool LiesInTarget(const std::string& path) { return FolderKey(FolderOf(path)) == folder_key_; }

  // kNone when `number` has become the lowest free one, else why the folder cannot tell.
  FileError FindFreeNumber(int& number) {
    for (;; ++lowest_free_) {
      const std::string path = InFolder(folder_, SavegameFileName(lowest_free_));
      const FileError error = files_.Attributes(path).error;
      number = lowest_free_;
      if (error == FileError::kNotFound) return FileError::kNone;
      if (error != FileError::kNone && error != FileError::kAmbiguous) return error;
    }
  }

  // Takes a savegame into the next bulk copy when nothing is in its way there, and nothing that it
  // brings is in the way of another.
  bool AddToBulk(const SavegameFiles& savegame, int slot) {
    const std::string key = FileKey(savegame.savegame);
    if (written_.contains(key) || bulk_targets_.contains(key) || handled_.contains(key)) {
      return false;
    }

    CopyGroup group;
    for (const auto& [from, name] : {std::pair(savegame.savegame, SavegameFileName(slot)),
                                     std::pair(savegame.note, NoteFileName(slot)),
                                     std::pair(savegame.shot, ShotFileName(slot))}) {
      const AttributesResult source = files_.Attributes(from);
      const bool there = source.error == FileError::kNone && source.attributes.IsPlainFile();
      if (!there && group.empty()) return false;
      if (!there && source.error != FileError::kNone && source.error != FileError::kNotFound) {
        return false;
      }
      const std::string to = InFolder(folder_, name);
      if (bulk_targets_.contains(FileKey(from)) || bulk_targets_.contains(FileKey(to))) {
        return false;
      }
      if (!there) continue;
      if (files_.Attributes(to).error != FileError::kNotFound) return false;
      group.push_back({from, to});
    }
    for (const CopyJob& job : group) bulk_targets_.insert(FileKey(job.target));
    if (mode_ == CopyMode::kMove) handled_.insert(key);
    bulk_.push_back(std::move(group));
    return true;
  }

  // Copies what was taken, and tells what has become of it as CopyOne does.
  void CopyBulk() {
    files_.CopyAllVerified(bulk_, [this](std::size_t) {
      program_.windows.ShowProgress(static_cast<int>(begun_++), static_cast<int>(count_));
      return !IsEnding(program_);
    });
    for (const CopyGroup& group : bulk_) TakeResult(group);
    bulk_.clear();
    bulk_targets_.clear();
  }

  void TakeResult(const CopyGroup& group) {
    if (group.front().error == FileError::kStopped) {
      copies_.not_copied.push_back({group.front().source, FileError::kStopped});
      return;
    }
    CopiedSavegame copied;
    bool whole = true;
    for (const CopyJob& job : group) {
      if (job.error == FileError::kNone) {
        written_.insert(FileKey(job.target));
        copies_.targets.push_back(job.target);
        copied.push_back({job.source, job.target});
        continue;
      }
      const bool gone = job.error == FileError::kNotFound && &job != &group.front();
      if (gone) continue;
      NoteFailure(job.source, FileNameOf(job.target), job.error);
      whole = false;
      if (&job == &group.front()) return;
    }
    if (mode_ == CopyMode::kMove && whole) moved_.push_back(std::move(copied));
  }

  // The files that were copied; nothing when the savegame has not arrived whole. Where the savegame
  // itself does not arrive its companions stay behind too: they would become those of the next one.
  std::optional<CopiedSavegame> CopyOne(const SavegameFiles& savegame, int slot) {
    const std::string key = FileKey(savegame.savegame);
    if (written_.contains(key)) {
      // Not there when its turn came but for the copy of another.
      copies_.not_copied.push_back({savegame.savegame, FileError::kNotFound});
      return std::nullopt;
    }
    const bool listed_twice = mode_ == CopyMode::kMove && !handled_.insert(key).second;
    if (listed_twice) return std::nullopt;

    CopiedSavegame copied;
    FileError error = CopyFile(savegame.savegame, SavegameFileName(slot), copied);
    if (error != FileError::kNone) {
      NoteFailure(savegame.savegame, SavegameFileName(slot), error);
      return std::nullopt;
    }
    bool whole = true;
    for (const auto& [from, name] : {std::pair(savegame.note, NoteFileName(slot)),
                                     std::pair(savegame.shot, ShotFileName(slot))}) {
      error = CopyFile(from, name, copied);
      if (error == FileError::kNone || error == FileError::kNotFound) continue;
      NoteFailure(from, name, error);
      whole = false;
    }
    return whole ? std::optional(copied) : std::nullopt;
  }

  FileError CopyFile(const std::string& from, const std::string& name, CopiedSavegame& copied) {
    const AttributesResult source = files_.Attributes(from);
    if (source.error != FileError::kNone) return source.error;
    if (!source.attributes.IsPlainFile()) return FileError::kNotFound;

    const std::string to = InFolder(folder_, name);
    const AttributesResult old = files_.Attributes(to);
    FileError why = old.error;
    if (why == FileError::kNone) {
      const auto identity = files_.Identity(from);
      const auto old_identity = files_.Identity(to);
      if (identity && identity == old_identity) {
        copies_.targets.push_back(to);
        return FileError::kNone;
      }
      const bool other_file = identity && old_identity && old.attributes.IsPlainFile();
      if (old.attributes.folder) return FileError::kIsAFolder;
      if (!other_file) return FileError::kAlreadyExists;
      if (!SameContent(files_, from, to)) why = MakeRoom(to);
    }
    if (why == FileError::kNotFound) {
      why = files_.CopyVerified(from, to);
      if (why != FileError::kNone) return why;
      written_.insert(FileKey(to));
    }
    if (why != FileError::kNone) return why;
    copies_.targets.push_back(to);
    copied.push_back({from, to});
    return FileError::kNone;
  }

  void NoteFailure(const std::string& from, const std::string& name, FileError error) {
    copies_.not_copied.push_back(FailureOfCopy(files_, from, InFolder(folder_, name), error));
  }

  // Sets a file aside whose content the copy would replace; kNotFound when its place is free then.
  FileError MakeRoom(const std::string& to) {
    if (!rescue_.Take({to}, kWhyInTheWay)) return rescue_.failures().back().why;
    copies_.set_aside.push_back(to);
    return FileError::kNotFound;
  }

  void DeleteSources(const std::vector<CopiedSavegame>& savegames) {
    std::vector<std::string> written;
    for (const CopiedSavegame& savegame : savegames) {
      for (const CopiedFile& file : savegame) written.push_back(file.to);
    }
    const FileError flush = written.empty() ? FileError::kNone : files_.Flush(written);
    int done = 0;
    for (const CopiedSavegame& savegame : savegames) {
      program_.windows.ShowProgress(done++, static_cast<int>(savegames.size()));
      DeleteSource(savegame, IsEnding(program_) ? FileError::kStopped : flush);
    }
  }

  // Deletes the files of one savegame when the copies of all of them are safe at that moment.
  void DeleteSource(const CopiedSavegame& savegame, FileError flush) {
    std::vector<std::string> paths;
    FileError error = flush;
    for (const CopiedFile& file : savegame) {
      if (error == FileError::kNone) error = WhyNotDelete(file);
      paths.push_back(file.from);
    }
    if (error != FileError::kNone) {
      for (const std::string& path : paths) copies_.not_deleted.push_back({path, error});
      return;
    }
    std::ranges::copy(RemoveFiles(program_, paths), std::back_inserter(copies_.not_deleted));
  }

  FileError WhyNotDelete(const CopiedFile& file) {
    const FileError found = files_.Attributes(file.from).error;
    if (found == FileError::kNotFound) return FileError::kNone;
    // Two names may lead to one file: it would be lost with either.
    const auto source = files_.Identity(file.from);
    const auto copy = files_.Identity(file.to);
    const bool safe = source && copy && source != copy && SameContent(files_, file.from, file.to);
    return safe ? FileError::kNone : FileError::kInputOutput;
  }

  Program& program_;
  FileSystem& files_;
  const std::string& folder_;
  std::map<std::string, std::string> folder_keys_;
  const std::string folder_key_;
  const CopyMode mode_;

  int lowest_free_ = 0;
  std::size_t count_ = 0;
  std::size_t begun_ = 0;               // savegames that were tried
  std::vector<CopyGroup> bulk_;         // taken, but not copied yet
  std::set<std::string> bulk_targets_;  // the keys of their copies
  std::vector<CopiedSavegame> moved_;   // copied, but not deleted yet
  std::set<std::string> written_;       // the keys of the files that this operation has made
  std::set<std::string> handled_;       // the keys of the savegames that were moved, or tried
  Rescue rescue_;
  SelectedCopies copies_;
};

}  // namespace

SelectedCopies CopySelectedSavegames(Program& program, const std::vector<std::int16_t>& indices,
                                     const std::string& folder, bool renumber, CopyMode mode) {
  return CopySavegames(program, FilesOf(program.catalogue, indices), folder, renumber, mode);
}

SelectedCopies CopySavegames(Program& program, const std::vector<SavegameFiles>& savegames,
                             const std::string& folder, bool renumber, CopyMode mode) {
  return Copier(program, folder, mode).Copy(savegames, renumber);
}

}  // namespace vellumark
