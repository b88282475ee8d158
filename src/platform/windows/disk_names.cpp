#include "platform/windows/disk_names.h"

#include <windows.h>

#include "platform/windows/file_error.h"
#include "platform/windows/file_handle.h"
#include "platform/windows/wide_text.h"

namespace vellumark {
namespace {

// A search for names, ended with this object.
class NameSearch {
 public:
  explicit NameSearch(const std::wstring& pattern)
      : handle_(FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &found_, FindExSearchNameMatch,
                                 nullptr, FIND_FIRST_EX_LARGE_FETCH)) {}
  NameSearch(const NameSearch&) = delete;
  NameSearch& operator=(const NameSearch&) = delete;
  ~NameSearch() {
    if (handle_ != INVALID_HANDLE_VALUE) FindClose(handle_);
  }

  bool HasFound() const { return handle_ != INVALID_HANDLE_VALUE; }
  const WIN32_FIND_DATAW& found() const { return found_; }
  bool Next() { return FindNextFileW(handle_, &found_) != 0; }

 private:
  WIN32_FIND_DATAW found_ = {};
  HANDLE handle_;
};

FileAttributes FromBits(DWORD bits) {
  FileAttributes attributes;
  attributes.folder = (bits & FILE_ATTRIBUTE_DIRECTORY) != 0;
  attributes.read_only = (bits & FILE_ATTRIBUTE_READONLY) != 0;
  attributes.hidden = (bits & FILE_ATTRIBUTE_HIDDEN) != 0;
  attributes.system = (bits & FILE_ATTRIBUTE_SYSTEM) != 0;
  attributes.archive = (bits & FILE_ATTRIBUTE_ARCHIVE) != 0;
  attributes.other = (bits & FILE_ATTRIBUTE_DEVICE) != 0;
  return attributes;
}

// The bits that a name itself has, or those of what it leads to when it is a link.
FileAttributes FollowLink(const std::wstring& path, DWORD bits) {
  if ((bits & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return FromBits(bits);

  FileAttributes dead;
  dead.other = true;
  const FileHandle target = OpenToAsk(path);
  BY_HANDLE_FILE_INFORMATION information = {};
  if (!target.IsOpen() || GetFileInformationByHandle(target.get(), &information) == 0) return dead;
  return FromBits(information.dwFileAttributes);
}

}  // namespace

std::wstring WidePath(const WindowsPath& path, const PathNames& names) {
  std::wstring wide = ToWide(names.ToHost(path.Joined()));
  if (path.names.empty()) wide += L'\\';
  return wide;
}

std::wstring WithName(std::wstring folder, std::wstring_view name) {
  if (folder.back() != L'\\') folder += L'\\';
  folder += name;
  return folder;
}

std::wstring DiskSpelling(const WindowsPath& path, const PathNames& names) {
  WindowsPath root;
  root.drive = path.drive;
  std::wstring spelled = WidePath(root, names);
  bool exists = true;
  for (const std::string& name : path.names) {
    std::wstring next = WithName(spelled, ToWide(names.ToHost(name)));
    if (exists) {
      const NameSearch search(next);
      exists = search.HasFound();
      if (exists) next = WithName(spelled, search.found().cFileName);
    }
    spelled = next;
  }
  return spelled;
}

DiskAttributes AttributesOf(const std::wstring& path) {
  WIN32_FILE_ATTRIBUTE_DATA found = {};
  if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &found) == 0) {
    return {ErrorUnless(false, path), {}};
  }
  const ULARGE_INTEGER size{{found.nFileSizeLow, found.nFileSizeHigh}};
  return {FileError::kNone, FollowLink(path, found.dwFileAttributes), size.QuadPart};
}

FolderContents ListFolder(const std::wstring& folder, const PathNames& names,
                          std::string_view pattern) {
  FolderContents contents;
  NameSearch search(WithName(folder, L"*"));
  if (!search.HasFound()) {
    const bool nothing_found = GetLastError() == ERROR_FILE_NOT_FOUND;
    contents.listing.error = ErrorUnless(false, folder);
    const DiskAttributes found = AttributesOf(folder);
    if (found.error != FileError::kNone) return contents;

    // The root of an empty drive does not even hold `.` and `..`.
    if (nothing_found) contents.listing.error = FileError::kNone;
    if (!found.attributes.folder) contents.listing.error = FileError::kNotFound;
    return contents;
  }

  ListingBuilder builder(names, pattern);
  do {
    const WIN32_FIND_DATAW& found = search.found();
    const std::wstring_view name = found.cFileName;
    if (name == L"." || name == L"..") continue;
    builder.Offer(FromWide(name), [&] {
      const FileAttributes attributes = FollowLink(WithName(folder, name), found.dwFileAttributes);
      return EntryKind{attributes.folder, attributes.IsPlainFile()};
    });
  } while (search.Next());

  const DWORD code = GetLastError();
  if (code == ERROR_NO_MORE_FILES) return builder.Finish();
  contents.listing.error = FileErrorFromCode(code);
  return contents;
}

}  // namespace vellumark
