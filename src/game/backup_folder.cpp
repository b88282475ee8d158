#include "game/backup_folder.h"

#include <utility>

#include "foundation/failures.h"
#include "foundation/message_box_talk.h"
#include "foundation/messages.h"
#include "foundation/operation_report.h"
#include "foundation/own_messages.h"
#include "foundation/rescue.h"
#include "foundation/strings.h"
#include "game/backup_label.h"
#include "program.h"
#include "savegames/slot_folders.h"

namespace vellumark {

void PrepareBackupFolder(Program& program) {
  std::string& folder = program.play.BackupFolder;
  folder = program.paths.ProgramFolder + LoadMessage(291);
  const AttributesResult found = program.files.Attributes(folder);
  FileError error = found.error;
  if (error == FileError::kNotFound) error = program.files.CreateFolder(folder);
  if (found.error == FileError::kNone && !found.attributes.folder) error = FileError::kNotAFolder;
  if (error == FileError::kNone) return;
  Tell(program, LoadMessage(kBackupFolderNotReady, {Quoted(folder), ReasonFor(error)}),
       BoxIcon::kExclamation);
}

void SetBackupAside(Program& program) {
  const std::string folder = program.play.BackupFolder;
  program.play = {};
  program.play.BackupFolder = folder;

  // Moving them away is what empties the folder: what could not be listed or moved is not deleted.
  Rescue rescue(program);
  rescue.Take(FilesOfSlots(program.files, folder), kWhyLeftInBackup);
  RemoveBackupLabel(program.files, folder);
  Report report;
  if (!rescue.folder().empty()) {
    report.Add(LoadMessage(kSlotsSetAside, {Quoted(folder), kLineBreak, Quoted(rescue.folder())}));
  }
  if (!rescue.failures().empty()) {
    report.Add(LoadMessage(kSlotsNotSetAside) + DescribeFailures(rescue.failures()));
  }
  report.Show(program);
}

}  // namespace vellumark
