#include "game/slot_backup.h"

#include <algorithm>

#include "foundation/file_utilities.h"
#include "foundation/paths.h"
#include "foundation/rescue.h"
#include "program.h"
#include "savegames/slot_folders.h"

namespace vellumark {
namespace {

bool IsSameFolder(Program& program, const std::string& a, const std::string& b) {
  if (SamePath(program.text, a, b)) return true;
  const auto identity = program.files.Identity(a);
  return identity && identity == program.files.Identity(b);
}

// True when every one of these files of the backup lies equal in the folder it was taken from.
bool AreBackInPlace(Program& program, const std::vector<std::string>& backup) {
  const std::string& home = program.play.backup_of;
  return !home.empty() && std::ranges::all_of(backup, [&](const std::string& path) {
    return SameContent(program.files, path, InFolder(home, FileNameOf(path)));
  });
}

// Empties BackupFolder for a new backup. Its files are the player's: only those that are back in
// their own folder may be deleted.
void MakeRoom(Program& program, SlotBackup& result) {
  FileError error = FileError::kNone;
  const auto old = FilesOfSlots(program.files, program.play.BackupFolder, &error);
  if (error != FileError::kNone) {
    result.failures.push_back({program.play.BackupFolder, error});
    return;
  }
  if (!old.empty() && AreBackInPlace(program, old)) {
    for (const std::string& path : old) {
      if (!DeleteFileForced(program.files, path, &error)) result.failures.push_back({path, error});
    }
  } else {
    Rescue rescue = SetAside(program, old);
    result.former = rescue.folder;
    result.failures = std::move(rescue.failures);
  }
  if (result.failures.empty()) program.play.backup_whole = false;
}

// Deletes the copies of a backup that did not become whole.
void TakeBack(Program& program, const std::string& game_folder,
              const std::vector<std::string>& copies) {
  for (const std::string& copy : copies) {
    const std::string original = InFolder(game_folder, FileNameOf(copy));
    if (SameContent(program.files, original, copy)) program.files.Delete(copy);
  }
}

}  // namespace

SlotBackup BackUpSlots(Program& program, const std::string& game_folder) {
  SlotBackup result;
  MakeRoom(program, result);
  if (!result.failures.empty()) return result;

  PlayState& play = program.play;
  FileError error = FileError::kNone;
  const auto slots = FilesOfSlots(program.files, game_folder, &error);
  if (error != FileError::kNone) result.failures.push_back({game_folder, error});
  std::vector<std::string> written;
  for (const std::string& path : slots) {
    const std::string copy = InFolder(play.BackupFolder, FileNameOf(path));
    error = program.files.CopyVerified(path, copy);
    if (error == FileError::kNone) {
      written.push_back(copy);
    } else {
      // A name that is taken stands in the game folder twice, in different letter case.
      const bool twice = error == FileError::kAlreadyExists;
      result.failures.push_back({path, twice ? FileError::kAmbiguous : error});
    }
  }
  if (!result.failures.empty()) TakeBack(program, game_folder, written);
  play.backup_of = game_folder;
  play.backed_up.clear();
  for (const std::string& path : written) play.backed_up.push_back(FileNameOf(path));
  play.backup_whole = result.failures.empty();
  return result;
}

bool IsBackupOf(Program& program, const std::string& game_folder) {
  return program.play.backup_whole && IsSameFolder(program, program.play.backup_of, game_folder);
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

std::vector<Failure> CopyBackupBack(Program& program) {
  std::vector<Failure> failures;
  FileError error = FileError::kNone;
  const auto backup = FilesOfSlots(program.files, program.play.BackupFolder, &error);
  if (error != FileError::kNone) failures.push_back({program.play.BackupFolder, error});
  for (const std::string& path : backup) {
    const std::string home = InFolder(program.play.backup_of, FileNameOf(path));
    if (!CopyFileReplacing(program.files, path, home, &error)) failures.push_back({path, error});
  }
  return failures;
}

void ReleaseBackup(Program& program) {
  FileError error = FileError::kNone;
  const auto backup = FilesOfSlots(program.files, program.play.BackupFolder, &error);
  if (error != FileError::kNone || backup.empty() || !AreBackInPlace(program, backup)) return;

  std::vector<std::string> home;
  home.reserve(backup.size());
  for (const std::string& path : backup) {
    home.push_back(InFolder(program.play.backup_of, FileNameOf(path)));
  }
  if (program.files.Flush(home) != FileError::kNone) return;
  for (const std::string& path : backup) DeleteFileForced(program.files, path);
}

}  // namespace vellumark
