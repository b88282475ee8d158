// The archive in use before a reorder: its sub-folders, and their deletion.
#ifndef VELLUMARK_MAINTENANCE_OLD_ARCHIVE_H_
#define VELLUMARK_MAINTENANCE_OLD_ARCHIVE_H_

#include <string>
#include <vector>

#include "foundation/rescue.h"
#include "maintenance/new_archive.h"
#include "platform/file_system.h"

namespace vellumark {

struct Program;

struct OldSubfolder {
  std::string path;
  bool ambiguous = false;  // another name differs from it by case only
};

struct OldArchive {
  std::vector<OldSubfolder> folders;   // numbers 1, 2, 3, ... up to the first that is no folder
  FileError error = FileError::kNone;  // why they could not be listed
};

// To be found before a run makes new sub-folders, whose names may go on where the old ones end.
OldArchive FindOldArchive(Program& program);

// Something that stays in the old archive.
struct KeptItem {
  std::string path;
  std::string reason;  // in words, without a full stop
};

// Deletes from the old sub-folders what is safe: the files of each savegame that have an equal copy
// in the new archive at that moment, and info files that still hold what the program wrote. What
// was left out as an equal but holds other bytes than what was kept for it is set aside, and so are
// files that belong to no savegame. Everything else stays, in its sub-folder, and is answered.
// To be called only when the new archive is whole and the archive's file names it.
std::vector<KeptItem> DeleteOldArchive(Program& program, const OldArchive& old,
                                       const NewArchive& made, Rescue& rescue,
                                       const ShowPercent& show);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_OLD_ARCHIVE_H_
