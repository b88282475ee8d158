#include "platform/windows/file_error.h"

#include <windows.h>

namespace vellumark {

FileError FileErrorFromCode(unsigned long code) {
  switch (code) {
    case ERROR_SUCCESS:
      return FileError::kNone;

    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_DIRECTORY:
      return FileError::kNotFound;

    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return FileError::kAlreadyExists;

    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_CANNOT_MAKE:
    case ERROR_DELETE_PENDING:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_PRIVILEGE_NOT_HELD:
      return FileError::kAccessDenied;

    // A file that may not grow further is full to whoever writes to it.
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case ERROR_FILE_TOO_LARGE:
      return FileError::kDiskFull;

    case ERROR_DIR_NOT_EMPTY:
      return FileError::kNotEmpty;

    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_CURRENT_DIRECTORY:
    case ERROR_PATH_BUSY:
    case ERROR_BUSY:
    case ERROR_USER_MAPPED_FILE:
      return FileError::kInUse;

    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
      return FileError::kBadName;

    case ERROR_NOT_READY:
    case ERROR_NO_MEDIA_IN_DRIVE:
    case ERROR_UNRECOGNIZED_VOLUME:
    case ERROR_DEVICE_NOT_CONNECTED:
    case ERROR_DEV_NOT_EXIST:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_NETNAME_DELETED:
    case ERROR_NETWORK_UNREACHABLE:
    case ERROR_HOST_UNREACHABLE:
    case ERROR_UNEXP_NET_ERR:
    case ERROR_REM_NOT_LIST:
    case ERROR_SEM_TIMEOUT:
      return FileError::kNotReady;

    default:
      return FileError::kInputOutput;
  }
}

FileError ErrorUnless(bool succeeded) {
  return succeeded ? FileError::kNone : FileErrorFromCode(GetLastError());
}

FileError ErrorUnless(bool succeeded, const std::wstring& path) {
  const FileError error = ErrorUnless(succeeded);
  if (succeeded || error != FileError::kNotFound) return error;

  const unsigned number = static_cast<unsigned>(path[0] - L'A');
  const bool has_drive = (GetLogicalDrives() & (1U << number)) != 0;
  const std::wstring root = path.substr(0, 2) + L'\\';
  const bool reached = GetFileAttributesW(root.c_str()) != INVALID_FILE_ATTRIBUTES;
  return has_drive && !reached ? FileError::kNotReady : error;
}

}  // namespace vellumark
