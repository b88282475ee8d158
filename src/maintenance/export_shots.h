// Copying all linked screen-shots into one folder under readable names.
#ifndef VELLUMARK_MAINTENANCE_EXPORT_SHOTS_H_
#define VELLUMARK_MAINTENANCE_EXPORT_SHOTS_H_

#include <string>

namespace vellumark {

struct Program;

// Copies the screen-shot of every catalogue entry that has one to `<level name>_<counter>.jpg` in
// this folder, over an older file of that name, and reports. Entries with the same level name and
// counter share a name: the last one stays. What a file name cannot hold becomes `_`; names that
// are the same only because of that, or that belong to a linked screen-shot itself, get a number.
void ExportLinkedShots(Program& program, const std::string& folder);

// Asks for the folder and exports into it.
void ChooseExportFolder(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_EXPORT_SHOTS_H_
