#include "platform/posix/file_error.h"

#include <cerrno>

namespace vellumark {

FileError FileErrorFromNumber(int number) {
  switch (number) {
    case 0:
      return FileError::kNone;

    case ENOENT:
    case ENOTDIR:
      return FileError::kNotFound;

    case EEXIST:
      return FileError::kAlreadyExists;

    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
      return FileError::kAccessDenied;

    // A file that may not grow further is full to whoever writes to it.
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return FileError::kDiskFull;

    case ENOTEMPTY:
      return FileError::kNotEmpty;

    case ETXTBSY:
    case EBUSY:
    case EAGAIN:
      return FileError::kInUse;

    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ:
      return FileError::kBadName;

    case ENOMEDIUM:
    case ENXIO:
    case ENODEV:
    case ESTALE:
    case ENOTCONN:
    case EHOSTDOWN:
    case EHOSTUNREACH:
    case ENETDOWN:
    case ENETUNREACH:
    case ETIMEDOUT:
    case ECONNREFUSED:
      return FileError::kNotReady;

    default:
      return FileError::kInputOutput;
  }
}

}  // namespace vellumark
