// The command Delete.
#ifndef VELLUMARK_MAINTENANCE_DELETE_SELECTED_H_
#define VELLUMARK_MAINTENANCE_DELETE_SELECTED_H_

namespace vellumark {

struct Program;

// Asks, and deletes the selected savegames with their notes and screen-shots.
void DeleteSelectedSavegames(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_DELETE_SELECTED_H_
