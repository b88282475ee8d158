#include "game/play.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "archive/archive_settings_validation.h"
#include "archive/scan.h"
#include "foundation/failures.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/operation_report.h"
#include "foundation/own_messages.h"
#include "foundation/paths.h"
#include "foundation/rescue.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/work_scope.h"
#include "game/backup_paths.h"
#include "game/own_slots_in_play.h"
#include "game/restore.h"
#include "game/running_game.h"
#include "platform/clipboard.h"
#include "program.h"
#include "savegames/copy_selected.h"
#include "savegames/slot_folders.h"

namespace vellumark {
namespace {

using Indices = std::vector<std::int16_t>;

SavegameEntry& EntryAt(Program& program, std::int16_t index) {
  return program.catalogue.entries[static_cast<std::size_t>(index)];
}

bool Refuse(Program& program, const std::string& text) {
  Tell(program, text, BoxIcon::kCritical);
  return false;
}

// A selected savegame whose file is, by whatever path, in the game folder or the backup folder:
// clearing the slots or backing them up would cost it.
const SavegameEntry* FindInPlayedFolder(Program& program, const Indices& indices,
                                        const std::string& game_folder) {
  FileSystem& files = program.files;
  const auto game = files.Identity(game_folder);
  const auto backup = files.Identity(program.play.BackupFolder);
  std::vector<FileIdentity> slots;
  for (const std::string& path : FilesOfSlots(files, game_folder)) {
    if (const auto slot = files.Identity(path)) slots.push_back(*slot);
  }
  for (const std::int16_t index : indices) {
    const SavegameEntry& entry = EntryAt(program, index);
    const auto folder = files.Identity(FolderOf(entry.SavegamePath));
    if (folder && (folder == game || folder == backup)) return &entry;
    for (const std::string* path : {&entry.SavegamePath, &entry.NotePath, &entry.ShotPath}) {
      const auto file = files.Identity(*path);
      if (file && std::ranges::find(slots, *file) != slots.end()) return &entry;
    }
  }
  return nullptr;
}

bool MayPlay(Program& program, const Indices& indices) {
  const bool any_in_game_folder = std::ranges::any_of(
      indices, [&](std::int16_t index) { return EntryAt(program, index).FolderNumber == 0; });
  if (any_in_game_folder) return Refuse(program, LoadMessage(263, {kLineBreak}));
  if (indices.empty()) {
    PlaySoundEffect(program, SoundEffect::kOpening);
    return Refuse(program, LoadMessage(264, {kLineBreak}));
  }
  if (!ValidateArchiveSettings(program)) return false;
  const std::int16_t most = program.archive.settings.MaxSavegame;
  if (indices.size() > static_cast<std::size_t>(std::max<std::int16_t>(most, 0))) {
    return Refuse(program, LoadMessage(265, {static_cast<int>(most)}));
  }

  const std::string game_folder = Trimmed(program.archive.settings.GameFolder);
  const auto identity = program.files.Identity(game_folder);
  if (identity && identity == program.files.Identity(program.play.BackupFolder)) {
    return Refuse(program, LoadMessage(kGameFolderIsBackup, {Quoted(game_folder)}));
  }
  if (const SavegameEntry* entry = FindInPlayedFolder(program, indices, game_folder)) {
    return Refuse(program, LoadMessage(kPlaySourceInGameFolder,
                                       {Quoted(entry->SavegamePath), Quoted(game_folder)}));
  }
  return MayBringUpGame(program);
}

// Puts the player's own slots aside. False when that failed: the slots are as they were.
bool PutSlotsAside(Program& program, const std::string& game_folder, bool another_folder,
                   Rescue& rescue, Report& report) {
  const std::string former_home = program.play.backup_of;
  const std::vector<Failure> failures = PutOwnSlotsAside(program, game_folder, rescue);
  const std::string& folder = program.play.BackupFolder;
  if (!rescue.folder().empty()) {
    report.Add(
        another_folder
            ? LoadMessage(kOtherBackupSetAside, {Quoted(former_home), Quoted(rescue.folder())})
            : LoadMessage(kSlotsSetAside, {Quoted(folder), kLineBreak, Quoted(rescue.folder())}));
  }
  if (failures.empty()) return true;
  report.Add(LoadMessage(kPlayNotBackedUp, {Quoted(game_folder)}) + DescribeFailures(failures));
  return false;
}

// The list goes on showing the player's own slots, which are in the backup now. In a later play its
// entries are there already, unless a restore has led them back to the game folder.
void ListBackup(Program& program, const std::string& game_folder) {
  const std::string& backup = program.play.BackupFolder;
  for (SavegameEntry& entry : program.catalogue.entries) {
    if (entry.FolderNumber != 0) continue;
    if (SamePath(program.text, FolderOf(entry.SavegamePath), backup)) continue;
    PointIntoFolder(program.text, entry, game_folder, backup, Occurrences::kFirst);
  }
}

// Replaces what is in the slots by the selected savegames. False when some of it failed.
bool FillSlots(Program& program, const Indices& indices, const std::string& game_folder,
               Rescue& rescue, Report& report) {
  const SlotClearing clearing = ClearGameSlots(program, game_folder, rescue);
  if (clearing.moved) {
    report.Add(LoadMessage(kGameSlotsSetAside, {Quoted(game_folder), Quoted(rescue.folder())}));
  }
  if (!clearing.failures.empty()) {
    report.Add(LoadMessage(kSlotsNotCleared, {Quoted(game_folder)}) +
               DescribeFailures(clearing.failures));
    if (clearing.deleted || clearing.moved) program.play.ExaminedInGameFolder = true;
    return false;
  }

  program.play.ExaminedInGameFolder = true;
  const SelectedCopies copies =
      CopySelectedSavegames(program, indices, game_folder, true, CopyMode::kCopy);
  RememberPlaced(program, indices, copies.targets);
  if (!copies.set_aside.empty()) {
    report.Add(
        LoadMessage(kGameSlotsSetAside, {Quoted(game_folder), Quoted(copies.rescue_folder)}));
  }
  if (copies.not_copied.empty()) return true;
  report.Add(LoadMessage(kPlayNotCopied, {Quoted(game_folder)}) +
             DescribeFailures(copies.not_copied));
  return false;
}

}  // namespace

void PlaySelectedSavegames(Program& program) {
  const Indices indices = program.selection.indices;
  if (!MayPlay(program, indices)) return;

  const std::string game_folder = Trimmed(program.archive.settings.GameFolder);
  PlayState& play = program.play;
  const bool first = !play.ExaminedInGameFolder;
  const bool another_folder = !first && !AreOwnSlotsAside(program, game_folder);
  Report report;
  Rescue rescue(program);
  bool safe = true;
  bool filled = false;
  {
    const WorkScope working(program);
    if (first || another_folder) {
      safe = PutSlotsAside(program, game_folder, another_folder, rescue, report);
    }
    if (safe) filled = FillSlots(program, indices, game_folder, rescue, report);
    // A play that has not happened leaves nothing.
    if (!filled && safe && !play.ExaminedInGameFolder) TakeBackupAway(program);
    if (play.ExaminedInGameFolder) ListBackup(program, game_folder);
  }
  report.Show(program);
  // The list shows the backup's slots as the game folder's: those of another folder by now.
  if (another_folder) ScanArchive(program);
  if (!filled || IsEnding(program)) {
    if (safe) RestoreOriginalSavegames(program);
    return;
  }

  program.clipboard.Empty();
  program.capture.CaptureArmed = true;
  BringUpGame(program, GameSlots::kFilledByPlay);
}

}  // namespace vellumark
