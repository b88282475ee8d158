#include "game/restore.h"

#include "archive/scan.h"
#include "foundation/failures.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/operation_report.h"
#include "foundation/own_messages.h"
#include "foundation/rescue.h"
#include "foundation/sound_effects.h"
#include "foundation/strings.h"
#include "foundation/work_scope.h"
#include "game/backup_folder.h"
#include "game/backup_paths.h"
#include "game/own_slots_in_play.h"
#include "game/rescued_savegames.h"
#include "program.h"

namespace vellumark {
namespace {

// Puts the slots back and tells about it what there is to tell; nothing when all went well. What
// the game has saved is in `rescue` then.
Report PutBack(Program& program, const std::string& folder, Rescue& rescue) {
  const WorkScope working(program);
  const PlayState& play = program.play;
  Report report;
  if (const auto missing = MissingFromBackup(program); !missing.empty()) {
    report.Add(LoadMessage(kBackupNotWhole, {Quoted(folder), Quoted(play.BackupFolder)}) +
               DescribeFailures(missing));
    return report;
  }

  const SlotClearing clearing = ClearGameSlots(program, folder, rescue);
  if (!rescue.folder().empty()) {
    report.Add(LoadMessage(kGameSlotsSetAside, {Quoted(folder), Quoted(rescue.folder())}));
  }
  if (!clearing.failures.empty()) {
    report.Add(LoadMessage(kSlotsNotCleared, {Quoted(folder)}) +
               DescribeFailures(clearing.failures));
    // What could not be set aside has no copy elsewhere, so nothing may be put in its place.
    if (!clearing.deleted) {
      report.Add(LoadMessage(kRestoreNotBegun, {Quoted(play.BackupFolder)}));
      return report;
    }
  }
  if (const auto failures = CopyBackupHome(program); !failures.empty()) {
    report.Add(LoadMessage(kRestoreNotCopied, {Quoted(folder), Quoted(play.BackupFolder)}) +
               DescribeFailures(failures));
    return report;
  }
  for (SavegameEntry& entry : program.catalogue.entries) {
    if (entry.FolderNumber == 0) {
      PointIntoFolder(program.text, entry, play.BackupFolder, folder, Occurrences::kEvery);
    }
  }
  return report;
}

// Tells what there is to tell about a restore. What the game saved during the play is offered to
// the archive in the same box.
void TellAndOffer(Program& program, const Report& report, const std::string& rescue_folder,
                  const std::string& otherwise) {
  if (!rescue_folder.empty() && CanArchiveRescued(program) && !IsEnding(program)) {
    const std::string question =
        report.text() + kLineBreak + kLineBreak + LoadMessage(kArchiveThemNow);
    if (AskYesNo(program, question, BoxIcon::kExclamation)) {
      ArchiveWholeRescue(program, rescue_folder);
      // At the start the scan is still to come.
      if (!program.catalogue.entries.empty()) ScanArchive(program);
    }
  } else if (!report.text().empty()) {
    report.Show(program);
  } else if (!otherwise.empty()) {
    Tell(program, otherwise);
  }
}

}  // namespace

void RestoreOriginalSavegames(Program& program) {
  PlayState& play = program.play;
  if (!play.ExaminedInGameFolder || !play.backup_whole) return;
  PlaySoundEffect(program, SoundEffect::kOpening);
  play.declined = !AskYesNo(program, LoadMessage(284, {kCarriageReturn}));
  if (play.declined) return;

  // The slots belong into the folder that they come from, whatever the settings name by now.
  const std::string folder = play.backup_of;
  const bool elsewhere = !AreOwnSlotsAside(program, Trimmed(program.archive.settings.GameFolder));
  Rescue rescue(program);
  const Report report = PutBack(program, folder, rescue);
  TellAndOffer(program, report, rescue.folder(),
               elsewhere ? LoadMessage(kRestoredElsewhere, {Quoted(folder)}) : std::string());
}

void OfferBackupOfEndedRun(Program& program) {
  if (!AdoptLabelledBackup(program)) return SetBackupAside(program);

  PlayState& play = program.play;
  const std::string folder = play.backup_of;
  if (AskYesNo(program, LoadMessage(kPutSlotsBack, {Quoted(folder), kLineBreak}))) {
    Rescue rescue(program);
    const Report report = PutBack(program, folder, rescue);
    if (play.given_back) ReleaseBackup(program);
    TellAndOffer(program, report, rescue.folder(), LoadMessage(kSlotsPutBack, {Quoted(folder)}));
    if (!play.given_back) return;  // it waits for the next start
  }
  SetBackupAside(program);
}

}  // namespace vellumark
