// A file in the making.
#ifndef VELLUMARK_PLATFORM_POSIX_NEW_FILE_H_
#define VELLUMARK_PLATFORM_POSIX_NEW_FILE_H_

#include <string>

#include "platform/posix/descriptor_io.h"

namespace vellumark {

// Makes an empty file under a temporary name where none was, and takes it away again unless Finish
// succeeds. What the end of the program leaves behind never has the file's own name, unless its
// folder has a temporary one itself.
class NewFile {
 public:
  explicit NewFile(std::string host);
  // Where a file of this host path is made.
  static std::string MadeAs(const std::string& host);
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;
  ~NewFile();

  // The number of the failure to make it, or 0.
  int error() const { return error_; }
  int descriptor() const { return file_.number(); }

  // Closes the file and gives it its name when this answers 0; otherwise the number of the failure,
  // EEXIST when something has got the name meanwhile.
  int Finish();

 private:
  std::string host_;
  std::string made_;  // where it is made
  int error_ = 0;
  Descriptor file_;
  bool stays_ = false;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_NEW_FILE_H_
