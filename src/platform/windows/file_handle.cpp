#include "platform/windows/file_handle.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/windows/file_error.h"

namespace vellumark {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
constexpr std::size_t kBlockSize = std::size_t{1} << 18U;

}  // namespace

FileHandle::FileHandle(FileHandle&& other) noexcept
    : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE)) {}

FileHandle::~FileHandle() { static_cast<void>(Close()); }

FileError FileHandle::Close() {
  if (!IsOpen()) return FileError::kNone;
  return ErrorUnless(CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE)) != 0);
}

FileHandle OpenExisting(const std::wstring& path, DWORD access) {
  return FileHandle(CreateFileW(path.c_str(), access, kShareAll, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
}

FileHandle OpenToAsk(const std::wstring& path, DWORD access) {
  return FileHandle(CreateFileW(path.c_str(), access, kShareAll, nullptr, OPEN_EXISTING,
                                FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

ReadResult ReadUpTo(const FileHandle& file, std::size_t limit) {
  // Room for a small file is not taken for a large one.
  LARGE_INTEGER size = {};
  if (limit > kBlockSize && GetFileSizeEx(file.get(), &size) != 0) {
    limit = std::min(limit, static_cast<std::size_t>(size.QuadPart));
  }

  ReadResult result;
  while (result.bytes.size() < limit) {
    const std::size_t before = result.bytes.size();
    const std::size_t wanted = std::min(limit - before, kBlockSize);
    result.bytes.resize(before + wanted);

    DWORD count = 0;
    const bool done = ReadFile(file.get(), result.bytes.data() + before, static_cast<DWORD>(wanted),
                               &count, nullptr) != 0;
    if (!done) result.error = ErrorUnless(done);
    result.bytes.resize(before + count);
    if (count < wanted) break;
  }
  return result;
}

FileError WriteAll(const FileHandle& file, std::string_view bytes, std::size_t* written) {
  *written = 0;
  while (*written < bytes.size()) {
    const std::size_t wanted = std::min(bytes.size() - *written, kBlockSize);
    DWORD count = 0;
    const bool done = WriteFile(file.get(), bytes.data() + *written, static_cast<DWORD>(wanted),
                                &count, nullptr) != 0;
    if (!done) return ErrorUnless(done);
    if (count == 0) return FileError::kDiskFull;
    *written += count;
  }
  return FileError::kNone;
}

FileError SetPosition(const FileHandle& file, std::uint64_t position) {
  LARGE_INTEGER place = {};
  place.QuadPart = static_cast<LONGLONG>(position);
  return ErrorUnless(SetFilePointerEx(file.get(), place, nullptr, FILE_BEGIN) != 0);
}

FileError CopyAll(const FileHandle& from, const FileHandle& to) {
  std::vector<char> block(kBlockSize);
  for (;;) {
    DWORD count = 0;
    const bool done =
        ReadFile(from.get(), block.data(), static_cast<DWORD>(block.size()), &count, nullptr) != 0;
    if (!done) return ErrorUnless(done);
    if (count == 0) return FileError::kNone;

    std::size_t written = 0;
    const FileError error = WriteAll(to, {block.data(), count}, &written);
    if (error != FileError::kNone) return error;
  }
}

}  // namespace vellumark
