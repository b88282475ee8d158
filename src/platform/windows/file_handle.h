// Bytes in and out of open files.
#ifndef VELLUMARK_PLATFORM_WINDOWS_FILE_HANDLE_H_
#define VELLUMARK_PLATFORM_WINDOWS_FILE_HANDLE_H_

#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace vellumark {

// Something open, closed with this object. Move only.
class FileHandle {
 public:
  FileHandle() = default;
  explicit FileHandle(HANDLE handle) : handle_(handle) {}
  FileHandle(FileHandle&& other) noexcept;
  FileHandle& operator=(FileHandle&&) = delete;
  ~FileHandle();

  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE get() const { return handle_; }

  // Closes now; the failure that the system kept back until then.
  FileError Close();

 private:
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

// Opens a file that exists, letting other programs do with it what they like meanwhile.
FileHandle OpenExisting(const std::wstring& path, DWORD access);

// The same for a file or folder, links followed, to ask what it is or what this user may do.
FileHandle OpenToAsk(const std::wstring& path, DWORD access = FILE_READ_ATTRIBUTES);

// From the file's position on. A file that is shorter than `limit` is no failure.
ReadResult ReadUpTo(const FileHandle& file, std::size_t limit);

// Writes all bytes at the file's position. `written` counts what was written in either case.
FileError WriteAll(const FileHandle& file, std::string_view bytes, std::size_t* written);

FileError SetPosition(const FileHandle& file, std::uint64_t position);

// Copies from one file's position to the other's until the first ends.
FileError CopyAll(const FileHandle& from, const FileHandle& to);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_WINDOWS_FILE_HANDLE_H_
