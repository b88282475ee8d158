#include "platform/windows/new_file.h"

#include <utility>

#include "platform/windows/file_error.h"

namespace vellumark {

NewFile::NewFile(std::wstring path)
    : path_(std::move(path)),
      file_(CreateFileW(path_.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr, CREATE_NEW,
                        FILE_ATTRIBUTE_NORMAL, nullptr)),
      error_(ErrorUnless(file_.IsOpen(), path_)) {
  // A folder of this name is reported as one that may not be written to.
  const bool taken = error_ == FileError::kAccessDenied &&
                     GetFileAttributesW(path_.c_str()) != INVALID_FILE_ATTRIBUTES;
  if (taken) error_ = FileError::kAlreadyExists;
}

NewFile::~NewFile() {
  if (error_ != FileError::kNone || stays_) return;
  static_cast<void>(file_.Close());
  DeleteFileW(path_.c_str());
}

FileError NewFile::Finish() {
  const FileError error = file_.Close();
  stays_ = error == FileError::kNone;
  return error;
}

}  // namespace vellumark
