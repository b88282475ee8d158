#include "game/restore.h"

#include "foundation/failures.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/talk.h"
#include "foundation/working.h"
#include "game/backup_paths.h"
#include "game/slot_backup.h"
#include "game/slot_clearing.h"
#include "program.h"

namespace vellumark {
namespace {

// Puts the slots back and answers what to tell about it; nothing when all went well.
std::string PutBack(Program& program, const std::string& folder) {
  const WorkScope working(program);
  const PlayState& play = program.play;
  if (const auto missing = MissingFromBackup(program); !missing.empty()) {
    return LoadMessage(kBackupNotWhole, {Quoted(folder), Quoted(play.BackupFolder)}) +
           DescribeFailures(missing);
  }

  std::string text;
  const SlotClearing clearing = ClearGameSlots(program, folder);
  if (!clearing.set_aside.empty()) {
    text = LoadMessage(kGameSlotsSetAside, {Quoted(folder), Quoted(clearing.set_aside)});
  }
  const auto add = [&text](const std::string& paragraph) {
    if (!text.empty()) text += std::string(kLineBreak) + kLineBreak;
    text += paragraph;
  };
  if (!clearing.failures.empty()) {
    add(LoadMessage(kSlotsNotCleared, {Quoted(folder)}) + DescribeFailures(clearing.failures));
    // What could not be set aside has no copy elsewhere, so nothing may be put in its place.
    if (!clearing.deleted) {
      add(LoadMessage(kRestoreNotBegun, {Quoted(play.BackupFolder)}));
      return text;
    }
  }
  if (const auto failures = CopyBackupBack(program); !failures.empty()) {
    add(LoadMessage(kRestoreNotCopied, {Quoted(folder), Quoted(play.BackupFolder)}) +
        DescribeFailures(failures));
    return text;
  }
  for (SavegameEntry& entry : program.catalogue.entries) {
    if (entry.FolderNumber == 0) {
      PointIntoFolder(program.text, entry, play.BackupFolder, folder, Occurrences::kEvery);
    }
  }
  return text;
}

}  // namespace

void RestoreOriginalSavegames(Program& program) {
  if (!program.play.ExaminedInGameFolder || !program.play.backup_whole) return;
  PlaySoundEffect(program, SoundEffect::kOpening);
  if (!AskYesNo(program, LoadMessage(284, {kCarriageReturn}))) return;

  // The slots belong into the folder that they come from, whatever the settings name by now.
  const std::string folder = program.play.backup_of;
  const bool elsewhere = !IsBackupOf(program, Trimmed(program.archive.settings.GameFolder));
  std::string text = PutBack(program, folder);
  if (!text.empty()) {
    Tell(program, text, BoxIcon::kExclamation);
  } else if (elsewhere) {
    Tell(program, LoadMessage(kRestoredElsewhere, {Quoted(folder)}));
  }
}

}  // namespace vellumark
