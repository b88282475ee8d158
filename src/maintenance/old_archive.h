// The sub-folders of the archive in use, as a reorder run finds them before it makes new ones.
#ifndef VELLUMARK_MAINTENANCE_OLD_ARCHIVE_H_
#define VELLUMARK_MAINTENANCE_OLD_ARCHIVE_H_

#include <string>
#include <vector>

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

OldArchive FindOldArchive(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_MAINTENANCE_OLD_ARCHIVE_H_
