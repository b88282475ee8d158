#include "platform/file_system.h"

#include "platform/common/bulk_copy.h"

namespace vellumark {

bool FileSystem::SameContent(const std::string& a, const std::string& b) {
  const ReadResult first = Read(a, kWholeFile);
  if (first.error != FileError::kNone) return false;
  const ReadResult second = Read(b, kWholeFile);
  return second.error == FileError::kNone && first.bytes == second.bytes;
}

FileError FileSystem::CopyVerified(const std::string& source, const std::string& target) {
  const FileError error = Copy(source, target);
  if (error != FileError::kNone) return error;

  if (SameContent(source, target)) return FileError::kNone;
  Delete(target);
  return FileError::kInputOutput;
}

void FileSystem::CopyAllVerified(std::vector<CopyGroup>& groups,
                                 const std::function<bool(std::size_t)>& begin) {
  for (std::size_t i = 0; i < groups.size(); ++i) {
    if (!begin(i)) return StopCopying(groups, i);
    CopyInOrder(groups[i], [this](std::size_t, const CopyJob& job) {
      return CopyVerified(job.source, job.target);
    });
  }
}

}  // namespace vellumark
