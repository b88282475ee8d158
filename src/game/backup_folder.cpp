#include "game/backup_folder.h"

#include "foundation/failures.h"
#include "foundation/messages.h"
#include "foundation/own_messages.h"
#include "foundation/rescue.h"
#include "foundation/strings.h"
#include "foundation/talk.h"
#include "platform/file_system.h"
#include "program.h"
#include "savegames/slot_folders.h"

namespace vellumark {

void PrepareBackupFolder(Program& program) {
  std::string& folder = program.play.BackupFolder;
  folder = program.paths.ProgramFolder + LoadMessage(291);
  FileError error = program.files.Attributes(folder).error;
  if (error == FileError::kNotFound) error = program.files.CreateFolder(folder);
  if (error != FileError::kNone) {
    Tell(program, LoadMessage(kBackupFolderNotReady, {Quoted(folder), ReasonFor(error)}),
         BoxIcon::kExclamation);
    return;
  }

  // Moving them away is what empties the folder: what could not be listed or moved is not deleted.
  const Rescue rescue = SetAside(program, FilesOfSlots(program.files, folder));
  std::string text;
  if (!rescue.folder.empty()) {
    text = LoadMessage(kSlotsSetAside, {Quoted(folder), kLineBreak, Quoted(rescue.folder)});
  }
  if (!rescue.failures.empty()) {
    if (!text.empty()) text += std::string(kLineBreak) + kLineBreak;
    text += LoadMessage(kSlotsNotSetAside) + DescribeFailures(rescue.failures);
  }
  if (!text.empty()) Tell(program, text, BoxIcon::kExclamation);
}

}  // namespace vellumark
