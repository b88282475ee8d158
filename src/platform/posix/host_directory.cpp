#include "platform/posix/host_directory.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace vellumark {
namespace {

bool IsDotOrDotDot(const char* name) {
  return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

}  // namespace

Directory Directory::Open(const std::string& host_folder) {
  Directory directory;
  directory.stream_.reset(opendir(host_folder.c_str()));
  if (!directory.stream_) directory.error_ = errno;
  return directory;
}

Directory Directory::OpenAt(int folder, const std::string& name) {
  Directory directory;
  const int descriptor = openat(folder, name.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor >= 0) directory.stream_.reset(fdopendir(descriptor));
  if (!directory.stream_) {
    directory.error_ = errno;
    if (descriptor >= 0) close(descriptor);
  }
  return directory;
}

const dirent* Directory::Next() {
  if (!stream_) return nullptr;
  for (;;) {
    errno = 0;
    const dirent* entry = readdir(stream_.get());
    if (entry == nullptr) {
      error_ = errno;
      return nullptr;
    }
    if (!IsDotOrDotDot(entry->d_name)) return entry;
  }
}

}  // namespace vellumark
