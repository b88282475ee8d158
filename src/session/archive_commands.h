// New, Load, Save and Save as, and the saving that happens by itself.
#ifndef VELLUMARK_SESSION_ARCHIVE_COMMANDS_H_
#define VELLUMARK_SESSION_ARCHIVE_COMMANDS_H_

#include <string>

namespace vellumark {

struct Program;

// Writes the settings to LastArchive; without one it asks for a name. What another archive's file
// of that name held is kept beside it as `<name>.bak`. A failure is told, and the archive stays
// changed.
void SaveArchive(Program& program);

// Asks for a file name, writes the settings there and makes it LastArchive. What an existing file
// of that name held is kept beside it as `<name>.bak`. After a failure it offers to ask again.
void SaveArchiveAs(Program& program);

// Saves when the archive has changed. An archive that was never saved under a name of its own
// brings up the question for one; once the session ends it is saved
// beside the program instead.
void SaveArchiveIfChanged(Program& program);

// Makes the archive that was in use before a NewArchive whose dialog is still open the current one
// again; nothing without one.
void UndoNewArchive(Program& program);

// Makes a new archive with the archive properties dialog.
void NewArchive(Program& program);

// Asks for an archive file and opens it. A file that is no whole archive record is refused, and
// everything stays as it was.
void LoadArchive(Program& program);

// Opens this archive file as LoadArchive does the one that it asks for.
void OpenArchive(Program& program, const std::string& path);

// The file of the archive in use; empty without one, and while the archive has no name of its own.
std::string NamedArchive(const Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_SESSION_ARCHIVE_COMMANDS_H_
