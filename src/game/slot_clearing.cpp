#include "game/slot_clearing.h"

#include <algorithm>
#include <map>
#include <utility>

#include "foundation/file_utilities.h"
#include "foundation/paths.h"
#include "foundation/rescue.h"
#include "game/slot_backup.h"
#include "program.h"
#include "savegames/slot_folders.h"

namespace vellumark {
namespace {

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

std::string BackupCopyOf(const Program& program, const std::string& path) {
  return InFolder(program.play.BackupFolder, FileNameOf(path));
}

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

// Also true where the disk does not tell.
bool MayBeSameFolder(Program& program, const std::string& a, const std::string& b) {
  if (SamePath(program.text, a, b)) return true;
  const auto first = program.files.Identity(a);
  const auto second = program.files.Identity(b);
  return !first || !second || first == second;
}

}  // namespace

SlotClearing ClearGameSlots(Program& program, const std::string& game_folder) {
  SlotClearing clearing;
  FileError error = FileError::kNone;
  const auto slots = FilesOfSlots(program.files, game_folder, &error);
  if (error != FileError::kNone) {
    clearing.failures.push_back({game_folder, error});
    return clearing;
  }
  const bool is_backed_up = IsBackupOf(program, game_folder);
  std::map<Kept, std::vector<std::string>> paths;
  for (const std::string& path : slots) {
    paths[WhereKept(program, path, is_backed_up)].push_back(path);
  }

  Rescue rescue = SetAside(program, paths[Kept::kNowhere]);
  clearing.set_aside = rescue.folder;
  clearing.failures = std::move(rescue.failures);
  if (!clearing.failures.empty()) return clearing;

  DeleteAll(program, paths[Kept::kInArchive], clearing);
  GiveToBackup(program, paths[Kept::kInBackup], clearing);
  program.play.brought.clear();
  return clearing;
}

void RememberBrought(Program& program, const std::string& folder,
                     const std::vector<std::string>& paths) {
  PlayState& play = program.play;
  if (!play.ExaminedInGameFolder || !MayBeSameFolder(program, folder, play.backup_of)) return;
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

}  // namespace vellumark
