#include "game/own_slots_in_play.h"

#include <algorithm>
#include <map>
#include <utility>

#include "foundation/file_utilities.h"
#include "foundation/paths.h"
#include "foundation/rescue.h"
#include "game/backup_label.h"
#include "program.h"
#include "savegames/slot_folders.h"
#include "savegames/slot_names.h"

namespace vellumark {
namespace {

// `unknown` is the answer where the disk does not tell.
bool IsSameFolder(Program& program, const std::string& a, const std::string& b, bool unknown) {
  if (SamePath(program.text, a, b)) return true;
  const auto first = program.files.Identity(a);
  const auto second = program.files.Identity(b);
  return first && second ? first == second : unknown;
}

std::string BackupCopyOf(const Program& program, const std::string& path) {
  return InFolder(program.play.BackupFolder, FileNameOf(path));
}

std::string HomeOf(const Program& program, const std::string& path) {
  return InFolder(program.play.backup_of, FileNameOf(path));
}

std::vector<std::string> HomesOf(const Program& program, const std::vector<std::string>& backup) {
  std::vector<std::string> homes;
  homes.reserve(backup.size());
  for (const std::string& path : backup) homes.push_back(HomeOf(program, path));
  return homes;
}

// True when every one of these files of the backup lies equal in the folder it was taken from.
bool AreBackInPlace(Program& program, const std::vector<std::string>& backup) {
  return !program.play.backup_of.empty() &&
         std::ranges::all_of(backup, [&](const std::string& path) {
           return SameContent(program.files, path, HomeOf(program, path));
         });
}

// Deletes the files of the backup, which are safe elsewhere, and then its label.
void DeleteBackup(Program& program, const std::vector<std::string>& backup) {
  bool all = true;
  for (const std::string& path : backup) all = DeleteFileForced(program.files, path) && all;
  if (all) RemoveBackupLabel(program.files, program.play.BackupFolder);
}

// Empties BackupFolder for a new backup. Its files are the player's: only those that are back in
// their own folder may be deleted.
std::vector<Failure> MakeRoom(Program& program, Rescue& rescue) {
  PlayState& play = program.play;
  FileError error = FileError::kNone;
  const auto old = FilesOfSlots(program.files, play.BackupFolder, &error);
  if (error != FileError::kNone) return {{play.BackupFolder, error}};
  if (AreBackInPlace(program, old)) {
    for (const std::string& path : old) {
      if (!DeleteFileForced(program.files, path, &error)) return {{path, error}};
    }
  } else if (!rescue.Take(old, kWhyOtherBackup)) {
    return rescue.failures();
  }
  play.backup_whole = false;
  RemoveBackupLabel(program.files, play.BackupFolder);
  return {};
}

void DeleteAll(Program& program, const std::vector<std::string>& paths, SlotClearing& clearing) {
  for (const std::string& path : paths) {
    FileError error = FileError::kNone;
    if (DeleteFileForced(program.files, path, &error)) {
      clearing.deleted = true;
    } else {
      clearing.failures.push_back({path, error});
    }
  }
}

enum class Kept { kNowhere, kInArchive, kInBackup };

bool WasBrought(const Program& program, const std::string& path) {
  return std::ranges::any_of(program.play.brought, [&](const std::string& name) {
    return SamePath(program.text, name, FileNameOf(path));
  });
}

// Where else there is what a file of the game folder holds.
Kept WhereKept(Program& program, const std::string& path, bool is_backed_up) {
  const PlayState& play = program.play;
  if (is_backed_up && SameContent(program.files, path, BackupCopyOf(program, path))) {
    return Kept::kInBackup;
  }
  // The archive may have given away what the user brought.
  if (play.placed.empty() || WasBrought(program, path)) return Kept::kNowhere;
  const ReadResult file = program.files.Read(path, FileSystem::kWholeFile);
  if (file.error != FileError::kNone) return Kept::kNowhere;
  const auto placed = std::ranges::find(play.placed, file.bytes, &PlacedFile::bytes);
  return placed == play.placed.end() ? Kept::kNowhere : Kept::kInArchive;
}

// Takes files away whose equals are in the backup. Moving each over its equal costs the disk less
// than freeing it, and needs no flush: the file itself is on the disk already. What cannot be
// moved, to another drive above all, is deleted once the copies are flushed.
void GiveToBackup(Program& program, const std::vector<std::string>& paths, SlotClearing& clearing) {
  std::vector<std::string> left;
  std::vector<std::string> copies;
  for (const std::string& path : paths) {
    std::string copy = BackupCopyOf(program, path);
    if (program.files.Rename(path, copy, RenameMode::kReplaceFile) == FileError::kNone) {
      clearing.deleted = true;
    } else {
      left.push_back(path);
      copies.push_back(std::move(copy));
    }
  }
  if (left.empty()) return;
  const FileError flush = program.files.Flush(copies);
  if (flush == FileError::kNone) return DeleteAll(program, left, clearing);
  for (const std::string& path : left) clearing.failures.push_back({path, flush});
}

}  // namespace

std::vector<Failure> PutOwnSlotsAside(Program& program, const std::string& game_folder,
                                      Rescue& rescue) {
  std::vector<Failure> failures = MakeRoom(program, rescue);
  if (!failures.empty()) return failures;

  PlayState& play = program.play;
  FileError error = FileError::kNone;
  const auto slots = FilesOfSlots(program.files, game_folder, &error);
  if (error != FileError::kNone) failures.push_back({game_folder, error});
  play.backup_of = game_folder;
  play.backed_up.clear();
  std::vector<CopyGroup> copies;
  copies.reserve(slots.size());
  for (const std::string& path : slots) copies.push_back({{path, BackupCopyOf(program, path)}});
  program.files.CopyAllVerified(copies, [](std::size_t) { return true; });
  for (const CopyGroup& copy : copies) {
    const CopyJob& file = copy.front();
    if (file.error == FileError::kNone) {
      play.backed_up.push_back(FileNameOf(file.target));
    } else if (file.error == FileError::kAlreadyExists) {
      // The name stands in the game folder twice, in different letter case.
      failures.push_back({file.source, FileError::kAmbiguous});
    } else {
      failures.push_back(FailureOfCopy(program.files, file.source, file.target, file.error));
    }
  }
  if (failures.empty()) {
    error = WriteBackupLabel(program.files, play.BackupFolder, {game_folder, play.backed_up, {}});
    if (error != FileError::kNone) failures.push_back({play.BackupFolder, error});
  }
  play.backup_whole = failures.empty();
  if (!play.backup_whole) TakeBackupAway(program);
  play.placed.clear();
  play.brought.clear();
  return failures;
}

void TakeBackupAway(Program& program) {
  PlayState& play = program.play;
  for (const std::string& name : play.backed_up) {
    const std::string copy = InFolder(play.BackupFolder, name);
    if (SameContent(program.files, HomeOf(program, copy), copy)) program.files.Delete(copy);
  }
  RemoveBackupLabel(program.files, play.BackupFolder);
  play.backed_up.clear();
  play.backup_whole = false;
}

bool AreOwnSlotsAside(Program& program, const std::string& game_folder) {
  const PlayState& play = program.play;
  return play.backup_whole && IsSameFolder(program, play.backup_of, game_folder, false);
}

SlotClearing ClearGameSlots(Program& program, const std::string& game_folder, Rescue& rescue) {
  SlotClearing clearing;
  FileError error = FileError::kNone;
  const auto slots = FilesOfSlots(program.files, game_folder, &error);
  if (error != FileError::kNone) {
    clearing.failures.push_back({game_folder, error});
    return clearing;
  }
  PlayState& play = program.play;
  const bool is_backed_up = AreOwnSlotsAside(program, game_folder);
  if (is_backed_up && play.given_back) {
    error =
        WriteBackupLabel(program.files, play.BackupFolder, {play.backup_of, play.backed_up, {}});
    if (error != FileError::kNone) {
      clearing.failures.push_back({play.BackupFolder, error});
      return clearing;
    }
    play.given_back = false;
  }
  std::map<Kept, std::vector<std::string>> paths;
  for (const std::string& path : slots) {
    paths[WhereKept(program, path, is_backed_up)].push_back(path);
  }

  const std::vector<std::string>& unknown = paths[Kept::kNowhere];
  const std::size_t failures_before = rescue.failures().size();
  const bool all_safe = rescue.Take(unknown, kWhyInGameSlots);
  clearing.failures.assign(rescue.failures().begin() + static_cast<std::ptrdiff_t>(failures_before),
                           rescue.failures().end());
  clearing.moved = std::ranges::any_of(unknown, [&](const std::string& path) {
    return program.files.Attributes(path).error == FileError::kNotFound;
  });
  if (!all_safe) return clearing;

  DeleteAll(program, paths[Kept::kInArchive], clearing);
  GiveToBackup(program, paths[Kept::kInBackup], clearing);
  play.brought.clear();
  return clearing;
}

void RememberPlaced(Program& program, const std::vector<std::int16_t>& indices,
                    const std::vector<std::string>& placed) {
  PlayState& play = program.play;
  play.declined = false;
  play.ExaminedList = indices;
  play.examined_paths.clear();
  std::vector<BackupLabel::Placed> sources;
  for (std::size_t slot = 0; slot < indices.size(); ++slot) {
    const SavegameEntry& entry = program.catalogue.entries[static_cast<std::size_t>(indices[slot])];
    play.examined_paths.push_back(entry.SavegamePath);
    const int number = static_cast<int>(slot);
    sources.push_back({SavegameFileName(number), entry.SavegamePath});
    sources.push_back({NoteFileName(number), entry.NotePath});
    sources.push_back({ShotFileName(number), entry.ShotPath});
  }
  play.placed.clear();
  std::vector<BackupLabel::Placed> known;
  for (const std::string& path : placed) {
    ReadResult read = program.files.Read(path, FileSystem::kWholeFile);
    if (read.error != FileError::kNone) continue;
    play.placed.push_back({FileNameOf(path), std::move(read.bytes)});
    const auto source = std::ranges::find(sources, FileNameOf(path), &BackupLabel::Placed::name);
    if (source != sources.end()) known.push_back(*source);
  }
  AddPlacedToLabel(program.files, play.BackupFolder, known);
}

void RememberBrought(Program& program, const std::string& folder,
                     const std::vector<std::string>& paths) {
  PlayState& play = program.play;
  if (!play.ExaminedInGameFolder || !IsSameFolder(program, folder, play.backup_of, true)) return;
  for (const std::string& path : paths) {
    play.brought.push_back(FileNameOf(path));
    // The game may save over either of two equals and rely on the other.
    const ReadResult read = program.files.Read(path, FileSystem::kWholeFile);
    for (const PlacedFile& file : play.placed) {
      if (read.error != FileError::kNone || file.bytes == read.bytes) {
        play.brought.push_back(file.name);
      }
    }
  }
}

std::vector<Failure> MissingFromBackup(Program& program) {
  std::vector<Failure> missing;
  for (const std::string& name : program.play.backed_up) {
    const std::string path = InFolder(program.play.BackupFolder, name);
    const FileError error = program.files.Read(path, FileSystem::kWholeFile).error;
    if (error != FileError::kNone) missing.push_back({path, error});
  }
  return missing;
}

std::vector<Failure> CopyBackupHome(Program& program) {
  PlayState& play = program.play;
  FileError error = FileError::kNone;
  const auto backup = FilesOfSlots(program.files, play.BackupFolder, &error);
  if (error != FileError::kNone) return {{play.BackupFolder, error}};
  std::vector<Failure> failures;
  std::vector<CopyGroup> copies;
  copies.reserve(backup.size());
  for (const std::string& path : backup) copies.push_back({{path, HomeOf(program, path)}});
  CopyAllReplacing(program.files, copies, [](std::size_t) { return true; });
  for (const CopyGroup& copy : copies) {
    const CopyJob& file = copy.front();
    if (file.error == FileError::kNone) continue;
    failures.push_back(FailureOfCopy(program.files, file.source, file.target, file.error));
  }
  play.given_back = failures.empty();
  if (play.given_back && program.files.Flush(HomesOf(program, backup)) == FileError::kNone) {
    MarkGivenBack(program.files, play.BackupFolder);
  }
  return failures;
}

void ReleaseBackup(Program& program) {
  PlayState& play = program.play;
  FileError error = FileError::kNone;
  const auto backup = FilesOfSlots(program.files, play.BackupFolder, &error);
  if (error != FileError::kNone) return;
  const bool back = AreBackInPlace(program, backup) &&
                    program.files.Flush(HomesOf(program, backup)) == FileError::kNone;
  if (back && (play.given_back || !backup.empty())) {
    DeleteBackup(program, backup);
  } else if (play.declined) {
    RemoveBackupLabel(program.files, play.BackupFolder);
  }
}

bool AdoptLabelledBackup(Program& program) {
  PlayState& play = program.play;
  const auto label = ReadBackupLabel(program.files, play.BackupFolder);
  if (!label) return false;
  play.backup_of = label->home;
  play.backed_up = label->files;
  if (label->given_back) {
    ReleaseBackup(program);
    return false;
  }
  play.backup_whole =
      FolderExists(program.files, label->home) && MissingFromBackup(program).empty();
  if (!play.backup_whole) return false;
  for (const BackupLabel::Placed& file : label->placed) {
    ReadResult read = program.files.Read(file.source, FileSystem::kWholeFile);
    if (read.error == FileError::kNone) play.placed.push_back({file.name, std::move(read.bytes)});
  }
  return true;
}

}  // namespace vellumark
