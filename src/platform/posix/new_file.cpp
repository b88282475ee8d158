#include "platform/posix/new_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace vellumark {

NewFile::NewFile(std::string host)
    : host_(std::move(host)),
      file_(open(host_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666)),
      error_(file_.IsOpen() ? 0 : errno) {}

NewFile::~NewFile() {
  if (error_ == 0 && !stays_) unlink(host_.c_str());
}

int NewFile::Finish() {
  const int failure = file_.Close();
  stays_ = failure == 0;
  return failure;
}

}  // namespace vellumark
