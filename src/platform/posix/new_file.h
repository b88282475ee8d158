// A file in the making.
#ifndef VELLUMARK_PLATFORM_POSIX_NEW_FILE_H_
#define VELLUMARK_PLATFORM_POSIX_NEW_FILE_H_

#include <string>

#include "platform/posix/descriptor_io.h"

namespace vellumark {

// Makes an empty file where none was, and takes it away again unless Finish succeeds.
class NewFile {
 public:
  explicit NewFile(std::string host);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();

  // The number of the failure to make it, or 0.
  int error() const { return error_; }
  int descriptor() const { return file_.number(); }

  // Closes the file, which stays when this answers 0; otherwise the number of the failure.
  int Finish();

 private:
  std::string host_;
  Descriptor file_;
  int error_ = 0;
  bool stays_ = false;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_NEW_FILE_H_
