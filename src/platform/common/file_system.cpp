#include "platform/file_system.h"

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

}  // namespace vellumark
