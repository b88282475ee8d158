#include "platform/posix/host_copy.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>

#include "platform/posix/descriptor_io.h"
#include "platform/posix/file_error.h"
#include "platform/posix/new_file.h"

namespace vellumark {
namespace {

// Fills an empty file and reads it back.
FileError CopyAndCompare(int from, int to) {
  int failure = CopyAll(from, to);
  if (failure == 0) failure = CompareAll(from, to);
  return FileErrorFromNumber(failure);
}

FileError FillCopy(int from, int to, ReadBack read_back) {
  if (read_back == ReadBack::kYes) return CopyAndCompare(from, to);
  return FileErrorFromNumber(CopyAll(from, to));
}

}  // namespace

bool CloneSupport::Clone(int from, int to) {
  struct stat source = {};
  struct stat target = {};
  if (fstat(from, &source) != 0 || fstat(to, &target) != 0) return false;
  const Devices devices{source.st_dev, target.st_dev};
  {
    const std::lock_guard lock(mutex_);
    if (without_.contains(devices)) return false;
  }
  if (ioctl(to, FICLONE, from) == 0) return true;
  const bool never = errno == EOPNOTSUPP || errno == ENOTTY || errno == ENOSYS || errno == EXDEV ||
                     errno == EINVAL;
  const std::lock_guard lock(mutex_);
  if (never) without_.insert(devices);
  return false;
}

FileError CopyHostFile(const std::string& from, const std::string& to, ReadBack read_back,
                       CloneSupport& clones) {
  const Descriptor source(open(from.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
  struct stat status = {};
  if (!source.IsOpen() || fstat(source.number(), &status) != 0) return FileErrorFromNumber(errno);

  NewFile file(to);
  if (file.error() != 0) return FileErrorFromNumber(file.error());
  if (!clones.Clone(source.number(), file.descriptor())) {
    const FileError error = FillCopy(source.number(), file.descriptor(), read_back);
    if (error != FileError::kNone) return error;
  }
  const std::array<timespec, 2> times = {timespec{0, UTIME_OMIT}, status.st_mtim};
  // Not every disk takes a time; the copy is whole without it.
  static_cast<void>(futimens(file.descriptor(), times.data()));
  return FileErrorFromNumber(file.Finish());
}

}  // namespace vellumark
