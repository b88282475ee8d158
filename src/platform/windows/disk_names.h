// Names and paths as the disk spells them.
#ifndef VELLUMARK_PLATFORM_WINDOWS_DISK_NAMES_H_
#define VELLUMARK_PLATFORM_WINDOWS_DISK_NAMES_H_

#include <string>
#include <string_view>

#include "platform/common/host_names.h"
#include "platform/common/listing_builder.h"
#include "platform/common/windows_path.h"
#include "platform/file_system.h"

namespace vellumark {

// The path for a system call; a drive's root ends with a backslash.
std::wstring WidePath(const WindowsPath& path, const PathNames& names);

// A name below a folder's path.
std::wstring WithName(std::wstring folder, std::wstring_view name);

// The path with each name that exists in the disk's own spelling.
std::wstring DiskSpelling(const WindowsPath& path, const PathNames& names);

struct DiskAttributes {
  FileError error = FileError::kNone;
  FileAttributes attributes;
  std::uint64_t size = 0;  // of a file, in bytes
};

// What a path names, links followed. A link that leads nowhere is `other`.
DiskAttributes AttributesOf(const std::wstring& path);

// The names of a folder that match `pattern`, in alphabetical order.
FolderContents ListFolder(const std::wstring& folder, const PathNames& names,
                          std::string_view pattern);

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_WINDOWS_DISK_NAMES_H_
