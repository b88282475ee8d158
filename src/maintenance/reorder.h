// Building a fresh archive in a new place, sorted by the internal counter.
#ifndef VELLUMARK_MAINTENANCE_REORDER_H_
#define VELLUMARK_MAINTENANCE_REORDER_H_

#include "maintenance/new_archive.h"
#include "maintenance/reorder_settings.h"

namespace vellumark {

// Copies the archived savegames, sorted, into new sub-folders, makes the new archive the current
// one, deletes the old one when that was asked for, and reports. False when the settings cannot be,
// a name is taken, the disk has no room, or not everything arrived and the user does not want the
// new archive so: what was made is gone again then, and the old archive is whole and still the
// current one. Nothing of the old archive is deleted unless every copy was read back equal and
// flushed, and the archive's file names the new one. All that went wrong is told in one message at
// the end.
bool ReorderArchive(Program& program, const ReorderSettings& settings, const ShowPercent& show);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_REORDER_H_
