// Deleting the old archive after its savegames are safe in the new one.
#ifndef VELLUMARK_MAINTENANCE_REORDER_DELETION_H_
#define VELLUMARK_MAINTENANCE_REORDER_DELETION_H_

#include <string>
#include <vector>

#include "maintenance/old_archive.h"
#include "maintenance/reorder_copying.h"

namespace vellumark {

struct KeptFolder {
  std::string path;
  std::string reason;  // in words, without a full stop
};

struct Deletion {
  std::vector<KeptFolder> kept;        // old sub-folders that are still there
  std::vector<std::string> set_aside;  // folders into which strange files were moved
};

// Deletes the old sub-folders whose savegames all have an equal copy in the new archive at that
// moment or were dropped for an equal savegame. A sub-folder with anything else that could be a
// savegame, or with a folder in it, stays whole. Files that belong to no savegame are set aside, so
// are a dropped savegame's note and screen-shot where its equal has another or none.
// To be called only when all copies have arrived and were flushed.
Deletion DeleteOldArchive(Program& program, const OldArchive& old, const NewArchive& made,
                          const ShowPercent& show);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_REORDER_DELETION_H_
