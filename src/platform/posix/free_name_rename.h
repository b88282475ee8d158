// Giving a file another name without ever replacing one.
#ifndef VELLUMARK_PLATFORM_POSIX_FREE_NAME_RENAME_H_
#define VELLUMARK_PLATFORM_POSIX_FREE_NAME_RENAME_H_

#include <string>

namespace vellumark {

// Renames a file or folder to a host path that nothing has yet. The number of the failure, or 0;
// EEXIST when the path is taken.
int RenameToFreeName(const std::string& from, const std::string& to);

// The same for a file system that cannot do it in one step: first the new name, then away with
// the old one; where that is not possible either (folders; disks without hard links), by looking
// before renaming.
int RenameToFreeNameInSteps(const std::string& from, const std::string& to);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_FREE_NAME_RENAME_H_
