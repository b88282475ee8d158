// Copying one file of the host to a new one.
#ifndef VELLUMARK_PLATFORM_POSIX_HOST_COPY_H_
#define VELLUMARK_PLATFORM_POSIX_HOST_COPY_H_

#include <sys/types.h>

#include <mutex>
#include <set>
#include <string>
#include <utility>

#include "platform/file_system.h"

namespace vellumark {

// Between which file systems a new file can share the blocks of an old one. For several threads.
class CloneSupport {
 public:
  // True when the empty file `to` holds the blocks of `from` now: there is nothing to read back.
  bool Clone(int from, int to);

 private:
  using Devices = std::pair<dev_t, dev_t>;

  std::mutex mutex_;
  std::set<Devices> without_;
};

enum class ReadBack { kNo, kYes };

// Makes the file `to`, where there is none, a copy of `from` with its time of change; with kYes it
// is read back and compared, unless it shares the other's blocks. For several threads, as long as
// no two make files of one temporary name.
FileError CopyHostFile(const std::string& from, const std::string& to, ReadBack read_back,
                       CloneSupport& clones);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_HOST_COPY_H_
