#include "platform/windows/new_file.h"

#include <algorithm>
#include <utility>

#include "platform/common/temporary_prefix.h"
#include "platform/windows/file_error.h"

namespace vellumark {
namespace {

// Beside the file; the same name when that is a temporary one already.
std::wstring TemporaryPathFor(const std::wstring& path) {
  const std::wstring prefix(kTemporaryPrefix.begin(), kTemporaryPrefix.end());
  const std::size_t name = path.find_last_of(L"\\/") + 1;
  if (path.compare(name, prefix.size(), prefix) == 0) return path;
  const std::size_t rest = std::min(name + prefix.size(), path.size());
  return path.substr(0, name) + prefix + path.substr(rest);
}

HANDLE MakeEmpty(const std::wstring& path, bool replaces) {
  return CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                     replaces ? CREATE_ALWAYS : CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
}

bool IsTaken(const std::wstring& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

}  // namespace

NewFile::NewFile(std::wstring path)
    : path_(std::move(path)),
      made_(TemporaryPathFor(path_)),
      error_(IsTaken(path_) ? FileError::kAlreadyExists : FileError::kNone),
      // A leftover of a run that was cut off gives way.
      file_(error_ == FileError::kNone ? MakeEmpty(made_, made_ != path_) : INVALID_HANDLE_VALUE) {
  if (error_ == FileError::kNone) error_ = ErrorUnless(file_.IsOpen(), made_);
}

NewFile::~NewFile() {
  if (error_ != FileError::kNone || stays_) return;
  static_cast<void>(file_.Close());
  DeleteFileW(made_.c_str());
}

FileError NewFile::Finish() {
  FileError error = file_.Close();
  if (error == FileError::kNone && made_ != path_) {
    error = ErrorUnless(MoveFileExW(made_.c_str(), path_.c_str(), 0) != 0, path_);
  }
  stays_ = error == FileError::kNone;
  return error;
}

}  // namespace vellumark
