// The lines of a folder list: the way down to a folder, and its sub-folders. Folders are written as
// the user reads them: full paths, the root of a drive as `X:\`.
#ifndef VELLUMARK_MAINTENANCE_FOLDER_LINES_H_
#define VELLUMARK_MAINTENANCE_FOLDER_LINES_H_

#include <cstddef>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace vellumark {

struct Program;

struct FolderLine {
  std::string shown;    // UTF-8: the folder's own name
  std::string path;     // empty when no path leads to it
  std::string refusal;  // why the folder cannot be taken; empty when it can
  int depth = 0;        // steps below the drive's root
};

struct FolderLines {
  FileError error = FileError::kNone;  // why no sub-folders are listed
  std::string folder;
  std::vector<FolderLine> lines;  // from the drive's root down to the folder, then its sub-folders
  std::size_t current = 0;        // the line of the folder itself
};

// A path in the form of this header.
std::string AsShownFolder(std::string path);

// Lists a folder. Sub-folders come sorted without regard to case, numbers by their value, names
// that begin with a dot at the end.
FolderLines ReadFolderLines(Program& program, const std::string& folder);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_FOLDER_LINES_H_
