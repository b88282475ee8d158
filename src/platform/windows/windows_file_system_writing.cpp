// What changes the disk.
#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <vector>

#include "platform/common/parallel.h"
#include "platform/common/temporary_prefix.h"
#include "platform/windows/disk_names.h"
#include "platform/windows/file_error.h"
#include "platform/windows/file_handle.h"
#include "platform/windows/new_file.h"
#include "platform/windows/windows_file_system.h"

namespace vellumark {
namespace {

constexpr std::size_t kFlushingThreads = 8;

std::optional<std::uint64_t> SizeOf(const FileHandle& file) {
  LARGE_INTEGER size = {};
  if (GetFileSizeEx(file.get(), &size) == 0) return std::nullopt;
  return static_cast<std::uint64_t>(size.QuadPart);
}

FileError Move(const std::wstring& from, const std::wstring& to, DWORD flags) {
  return ErrorUnless(MoveFileExW(from.c_str(), to.c_str(), flags) != 0);
}

// A file in the place of another has its access list, where that is allowed.
void TakeOverAccess(const std::wstring& file, const std::wstring& from) {
  DWORD size = 0;
  GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  if (size == 0) return;
  std::vector<std::byte> list(size);
  if (GetFileSecurityW(from.c_str(), DACL_SECURITY_INFORMATION, list.data(), size, &size) != 0) {
    SetFileSecurityW(file.c_str(), DACL_SECURITY_INFORMATION, list.data());
  }
}

// kNone for a file that may be changed. Windows refuses a read-only file by itself; Wine lets an
// administrator write to it.
FileError CheckWritableFile(const std::wstring& path) {
  const DiskAttributes found = AttributesOf(path);
  if (found.error != FileError::kNone) return found.error;
  const FileAttributes& attributes = found.attributes;
  const bool writable = !attributes.folder && !attributes.other && !attributes.read_only;
  return writable ? FileError::kNone : FileError::kAccessDenied;
}

FileError FlushFile(const std::wstring& path) {
  const FileHandle file = OpenExisting(path, GENERIC_WRITE);
  if (!file.IsOpen()) return ErrorUnless(false);
  return ErrorUnless(FlushFileBuffers(file.get()) != 0);
}

}  // namespace

FileError WindowsFileSystem::Create(const std::string& path, std::string_view bytes) {
  const CheckedPath checked = PathToMake(path);
  if (checked.error != FileError::kNone) return checked.error;

  NewFile file(checked.wide);
  if (file.error() != FileError::kNone) return file.error();
  std::size_t written = 0;
  const FileError error = WriteAll(file.handle(), bytes, &written);
  return error == FileError::kNone ? file.Finish() : error;
}

FileError WindowsFileSystem::Append(const std::string& path, std::string_view bytes) {
  const CheckedPath checked = PathToMake(path);
  if (checked.error != FileError::kNone) return checked.error;
  const FileError refused = CheckWritableFile(checked.wide);
  if (refused == FileError::kNotFound) return Create(path, bytes);
  if (refused != FileError::kNone) return refused;

  const FileHandle file = OpenExisting(checked.wide, GENERIC_WRITE);
  if (!file.IsOpen()) return ErrorUnless(false, checked.wide);
  const auto size = SizeOf(file);
  if (!size) return ErrorUnless(false);
  FileError error = SetPosition(file, *size);
  if (error != FileError::kNone) return error;
  std::size_t written = 0;
  error = WriteAll(file, bytes, &written);
  if (error == FileError::kNone) return error;

  // Only what this call has added is taken away again, not what others may have added meanwhile.
  const bool own = SizeOf(file) == *size + written;
  const bool undone =
      !own || (SetPosition(file, *size) == FileError::kNone && SetEndOfFile(file.get()) != 0);
  return undone ? error : FileError::kInputOutput;
}

FileError WindowsFileSystem::WriteAt(const std::string& path, std::uint64_t offset,
                                     std::string_view bytes) {
  const CheckedPath checked = PathToChange(path);
  if (checked.error != FileError::kNone) return checked.error;
  const FileError refused = CheckWritableFile(checked.wide);
  if (refused != FileError::kNone) return refused;
  const FileHandle file = OpenExisting(checked.wide, GENERIC_READ | GENERIC_WRITE);
  if (!file.IsOpen()) return ErrorUnless(false, checked.wide);

  const auto size = SizeOf(file);
  if (!size) return ErrorUnless(false);
  if (offset > *size || bytes.size() > *size - offset) return FileError::kTooShort;

  // Kept so that a write that fails half way can be taken back.
  FileError error = SetPosition(file, offset);
  if (error != FileError::kNone) return error;
  const ReadResult old = ReadUpTo(file, bytes.size());
  if (old.error != FileError::kNone) return old.error;

  error = SetPosition(file, offset);
  if (error != FileError::kNone) return error;
  std::size_t written = 0;
  error = WriteAll(file, bytes, &written);
  if (error == FileError::kNone) return error;

  std::size_t restored = 0;
  if (SetPosition(file, offset) == FileError::kNone) {
    WriteAll(file, std::string_view(old.bytes).substr(0, written), &restored);
  }
  return error;
}

FileError WindowsFileSystem::Copy(const std::string& source, const std::string& target) {
  const CheckedPath from_path = PathToLookFor(source);
  if (from_path.error != FileError::kNone) return from_path.error;
  const FileHandle from = OpenExisting(from_path.wide, GENERIC_READ);
  if (!from.IsOpen()) return ErrorUnless(false, from_path.wide);
  const CheckedPath to_path = PathToMake(target);
  if (to_path.error != FileError::kNone) return to_path.error;

  NewFile to(to_path.wide);
  if (to.error() != FileError::kNone) return to.error();
  const FileError error = CopyAll(from, to.handle());
  if (error != FileError::kNone) return error;

  // Not every disk takes a time; the copy is whole without it. The attributes stay behind: a
  // read-only copy could not be worked with.
  FILETIME changed = {};
  if (GetFileTime(from.get(), nullptr, nullptr, &changed) != 0) {
    SetFileTime(to.handle().get(), nullptr, nullptr, &changed);
  }
  return to.Finish();
}

// The system keeps a name safe together with the file's contents; a folder has nothing to flush.
// Each file waits for the disk, which serves many at once faster.
FileError WindowsFileSystem::Flush(const std::vector<std::string>& paths) {
  std::vector<FileError> errors(paths.size());
  ForEachIndex(paths.size(), kFlushingThreads, [&](std::size_t i) {
    const CheckedPath checked = PathToLookFor(paths[i]);
    errors[i] = checked.error;
    if (checked.error != FileError::kNone) return;
    const DiskAttributes found = AttributesOf(checked.wide);
    errors[i] = found.error;
    const bool file = found.error == FileError::kNone && !found.attributes.folder;
    if (file) errors[i] = FlushFile(checked.wide);
  });
  const auto failed =
      std::ranges::find_if(errors, [](FileError error) { return error != FileError::kNone; });
  return failed == errors.end() ? FileError::kNone : *failed;
}

FileError WindowsFileSystem::Rename(const std::string& from, const std::string& to,
                                    RenameMode mode) {
  const CheckedPath source = PathToChange(from);
  if (source.error != FileError::kNone) return source.error;
  const DiskAttributes found = AttributesOf(source.wide);
  if (found.error != FileError::kNone) return found.error;
  const CheckedPath target = PathToMake(to);
  if (target.error != FileError::kNone) return target.error;

  // Where nothing is, or the same entry in another letter case, the system renames it and refuses
  // everything else.
  const DiskAttributes old = AttributesOf(target.wide);
  const std::wstring spelled = DiskSpelling(target.path, names_);
  const bool same_entry = DiskSpelling(source.path, names_) == spelled;
  const bool is_free = old.error == FileError::kNotFound || same_entry;
  if (is_free || mode == RenameMode::kRefuseExisting) return Move(source.wide, target.wide, 0);

  // Two names of one file are none to choose between; a folder has no place where a file is.
  const FileError refused = CheckWritableFile(target.wide);
  if (refused != FileError::kNone) return refused;
  if (found.attributes.folder || Identity(from) == Identity(to)) return FileError::kAccessDenied;
  TakeOverAccess(source.wide, spelled);
  return Move(source.wide, spelled, MOVEFILE_REPLACE_EXISTING);
}

FileError WindowsFileSystem::Delete(const std::string& path) {
  const CheckedPath checked = PathToChange(path);
  if (checked.error != FileError::kNone) return checked.error;
  const FileError refused = CheckWritableFile(checked.wide);
  if (refused != FileError::kNone) return refused;
  return ErrorUnless(DeleteFileW(checked.wide.c_str()) != 0);
}

FileError WindowsFileSystem::ClearAttributes(const std::string& path) {
  const CheckedPath checked = PathToChange(path);
  if (checked.error != FileError::kNone) return checked.error;
  const DWORD bits = GetFileAttributesW(checked.wide.c_str());
  if (bits == INVALID_FILE_ATTRIBUTES) return ErrorUnless(false, checked.wide);
  if ((bits & FILE_ATTRIBUTE_DIRECTORY) != 0) return FileError::kAccessDenied;

  constexpr DWORD kCleared =
      FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
  if ((bits & kCleared) == 0) return FileError::kNone;
  const DWORD left = bits & ~kCleared;
  return ErrorUnless(
      SetFileAttributesW(checked.wide.c_str(), left == 0 ? FILE_ATTRIBUTE_NORMAL : left) != 0);
}

FileError WindowsFileSystem::CreateFolder(const std::string& path) {
  const CheckedPath checked = PathToMake(path);
  if (checked.error != FileError::kNone) return checked.error;
  return ErrorUnless(CreateDirectoryW(checked.wide.c_str(), nullptr) != 0, checked.wide);
}

FileError WindowsFileSystem::RemoveFolder(const std::string& path) {
  const CheckedPath checked = PathToChange(path);
  if (checked.error != FileError::kNone) return checked.error;
  return ErrorUnless(RemoveDirectoryW(checked.wide.c_str()) != 0, checked.wide);
}

}  // namespace vellumark
