#include "platform/posix/free_name_rename.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace vellumark {

int RenameToFreeName(const std::string& from, const std::string& to) {
  if (renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;
  return RenameToFreeNameInSteps(from, to);
}

int RenameToFreeNameInSteps(const std::string& from, const std::string& to) {
  if (link(from.c_str(), to.c_str()) == 0) {
    if (unlink(from.c_str()) == 0) return 0;
    const int failure = errno;
    unlink(to.c_str());
    return failure;
  }

  struct stat status = {};
  if (lstat(to.c_str(), &status) == 0) return EEXIST;
  if (errno != ENOENT) return errno;
  return std::rename(from.c_str(), to.c_str()) == 0 ? 0 : errno;
}

}  // namespace vellumark
