// A file in the making.
#ifndef VELLUMARK_PLATFORM_WINDOWS_NEW_FILE_H_
#define VELLUMARK_PLATFORM_WINDOWS_NEW_FILE_H_

#include <string>

#include "platform/windows/file_handle.h"

namespace vellumark {

// Makes an empty file under a temporary name where none was, and takes it away again unless Finish
// succeeds. What the end of the program leaves behind never has the file's own name.
class NewFile {
 public:
  explicit NewFile(std::wstring path);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();

  // The failure to make it.
  FileError error() const { return error_; }
  const FileHandle& handle() const { return file_; }

  // Closes the file and gives it its name when this answers kNone; kAlreadyExists when something
  // has got the name meanwhile.
  FileError Finish();

 private:
  std::wstring path_;
  std::wstring made_;  // where it is made
  FileError error_;
  FileHandle file_;
  bool stays_ = false;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_WINDOWS_NEW_FILE_H_
