// The archive scan: what is on the disk becomes the catalogue and the list.
#ifndef VELLUMARK_ARCHIVE_SCAN_H_
#define VELLUMARK_ARCHIVE_SCAN_H_

namespace vellumark {

struct Program;

// Rebuilds the catalogue and the main window's list. What could not be listed as it should be
// (names that stand twice in a folder, files that cannot be read, a full table) is told in one
// message at the end.
void ScanArchive(Program& program);

// The command "Rescan archive and tr folder".
void RescanCommand(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_ARCHIVE_SCAN_H_
