// Building a fresh archive in a new place, sorted by the internal counter.
#ifndef VELLUMARK_MAINTENANCE_REORDER_H_
#define VELLUMARK_MAINTENANCE_REORDER_H_

#include "maintenance/reorder_copying.h"

namespace vellumark {

// Copies the archived savegames, sorted, into new sub-folders, deletes the old archive when that
// was asked for, reports, and makes the new archive the current one. False, after telling the user
// why, when the settings cannot be or a sub-folder could not be made; the old archive is whole and
// still the current one then. Nothing of the old archive is deleted unless every copy was read back
// equal and flushed. All that went wrong is told in one message at the end.
bool ReorderArchive(Program& program, const ReorderSettings& settings, const ShowPercent& show);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_REORDER_H_
