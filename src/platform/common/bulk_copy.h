// Copying whole lists of files, with the results of copying one after the other.
#ifndef VELLUMARK_PLATFORM_COMMON_BULK_COPY_H_
#define VELLUMARK_PLATFORM_COMMON_BULK_COPY_H_

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace vellumark {

// A copy that a thread can make without looking anything up. Its source is there, and its target is
// free but for the copies that are still being made.
struct ReadyCopy {
  std::string key;                  // the same for all copies that could get in each other's way
  std::function<FileError()> copy;  // runs on any thread
  std::function<void()> made;       // called on the calling thread once the copy has arrived
};

// Nothing where only the copy itself can tell what becomes of it.
using PrepareCopy = std::function<std::optional<ReadyCopy>(const CopyJob&)>;

// FileSystem::CopyAllVerified on several threads. What cannot be prepared, or would get in the way
// of a copy that is still being made, waits for those before it and is copied by the caller.
void CopyOnThreads(FileSystem& files, std::vector<CopyGroup>& groups,
                   const std::function<bool(std::size_t)>& begin, const PrepareCopy& prepare);

// Copies the files of one group by `copy`, which gets the number of each.
template <typename Copy>
void CopyInOrder(CopyGroup& group, const Copy& copy) {
  for (std::size_t i = 0; i < group.size(); ++i) {
    const bool stays = i > 0 && group[0].error != FileError::kNone;
    group[i].error = stays ? group[0].error : copy(i, group[i]);
  }
}

// Marks the groups from `first` on.
void StopCopying(std::vector<CopyGroup>& groups, std::size_t first);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_COMMON_BULK_COPY_H_
