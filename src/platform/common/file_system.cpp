#include "platform/file_system.h"

namespace vellumark {

FileError FileSystem::CopyVerified(const std::string& source, const std::string& target) {
  const FileError error = Copy(source, target);
  if (error != FileError::kNone) return error;

  const ReadResult original = Read(source, kWholeFile);
  const ReadResult copy = Read(target, kWholeFile);
  const bool read = original.error == FileError::kNone && copy.error == FileError::kNone;
  if (read && original.bytes == copy.bytes) return FileError::kNone;
  Delete(target);
  return FileError::kInputOutput;
}

}  // namespace vellumark
