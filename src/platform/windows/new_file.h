// A file in the making.
#ifndef VELLUMARK_PLATFORM_WINDOWS_NEW_FILE_H_
#define VELLUMARK_PLATFORM_WINDOWS_NEW_FILE_H_

#include <string>

#include "platform/windows/file_handle.h"

namespace vellumark {

// Makes an empty file where none was, and takes it away again unless Finish succeeds.
class NewFile {
 public:
  explicit NewFile(std::wstring path);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();

  // The failure to make it.
  FileError error() const { return error_; }
  const FileHandle& handle() const { return file_; }

  // Closes the file, which stays when this answers kNone.
  FileError Finish();

 private:
  std::wstring path_;
  FileHandle file_;
  FileError error_;
  bool stays_ = false;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_WINDOWS_NEW_FILE_H_
