#include "game/slot_clearing.h"

#include <algorithm>
#include <utility>

#include "foundation/file_utilities.h"
#include "foundation/paths.h"
#include "foundation/rescue.h"
#include "game/slot_backup.h"
#include "program.h"
#include "savegames/slot_folders.h"

namespace vellumark {
namespace {

bool IsKeptElsewhere(Program& program, const std::string& path, bool is_backed_up) {
  const PlayState& play = program.play;
  const ReadResult file = program.files.Read(path, FileSystem::kWholeFile);
  if (file.error != FileError::kNone) return false;
  const bool placed =
      std::ranges::find(play.placed, file.bytes, &PlacedFile::bytes) != play.placed.end();
  if (placed || !is_backed_up) return placed;

  const std::string copy = InFolder(play.BackupFolder, FileNameOf(path));
  const ReadResult backup = program.files.Read(copy, FileSystem::kWholeFile);
  return backup.error == FileError::kNone && backup.bytes == file.bytes;
}

}  // namespace

SlotClearing ClearGameSlots(Program& program, const std::string& game_folder) {
  SlotClearing clearing;
  FileError error = FileError::kNone;
  std::vector<std::string> kept = FilesOfSlots(program.files, game_folder, &error);
  if (error != FileError::kNone) {
    clearing.failures.push_back({game_folder, error});
    return clearing;
  }
  const bool is_backed_up = IsBackupOf(program, game_folder);
  const auto unsaved = std::stable_partition(
      kept.begin(), kept.end(),
      [&](const std::string& path) { return IsKeptElsewhere(program, path, is_backed_up); });

  Rescue rescue = SetAside(program, {unsaved, kept.end()});
  clearing.set_aside = rescue.folder;
  clearing.failures = std::move(rescue.failures);
  if (!clearing.failures.empty()) return clearing;

  kept.erase(unsaved, kept.end());
  for (const std::string& path : kept) {
    if (DeleteFileForced(program.files, path, &error)) {
      clearing.deleted = true;
    } else {
      clearing.failures.push_back({path, error});
    }
  }
  return clearing;
}

}  // namespace vellumark
