// An open folder of the host and the names in it.
#ifndef VELLUMARK_PLATFORM_POSIX_HOST_DIRECTORY_H_
#define VELLUMARK_PLATFORM_POSIX_HOST_DIRECTORY_H_

#include <dirent.h>

#include <memory>
#include <string>

namespace vellumark {

class Directory {
 public:
  // One that holds nothing.
  Directory() = default;
  static Directory Open(const std::string& host_folder);
  static Directory OpenAt(int folder, const std::string& name);

  // The next name except `.` and `..`; null at the end and after a failure.
  const dirent* Next();

  // The number of the failure to open or to read on, or 0.
  int error() const { return error_; }
  // For calls relative to the folder; only when it could be opened.
  int descriptor() const { return dirfd(stream_.get()); }

 private:
  struct Closer {
    void operator()(DIR* stream) const { closedir(stream); }
  };

  std::unique_ptr<DIR, Closer> stream_;
  int error_ = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_POSIX_HOST_DIRECTORY_H_
