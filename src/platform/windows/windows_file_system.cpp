// Looking and places; what changes the disk stands in windows_file_system_writing.cpp.
#include "platform/windows/windows_file_system.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <utility>

#include "platform/windows/disk_names.h"
#include "platform/windows/file_error.h"
#include "platform/windows/file_handle.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_folder_reader.h"

namespace vellumark {
namespace {

constexpr std::size_t kLongestPath = 259;

std::wstring WorkingFolder() {
  std::array<wchar_t, MAX_PATH> folder = {};
  const DWORD length = GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data());
  return length < folder.size() ? std::wstring(folder.data(), length) : std::wstring();
}

std::optional<FileIdentity> IdentityOf(const std::wstring& path) {
  const FileHandle file = OpenToAsk(path);
  BY_HANDLE_FILE_INFORMATION information = {};
  if (!file.IsOpen() || GetFileInformationByHandle(file.get(), &information) == 0) {
    return std::nullopt;
  }
  const std::uint64_t index = std::uint64_t{information.nFileIndexHigh} << 32U;
  return FileIdentity{information.dwVolumeSerialNumber, index | information.nFileIndexLow};
}

// The name that the user gave the volume. Asking a computer in the network could take long.
std::string LabelOf(const std::wstring& root) {
  if (GetDriveTypeW(root.c_str()) == DRIVE_REMOTE) return {};
  std::array<wchar_t, MAX_PATH + 1> label = {};
  if (GetVolumeInformationW(root.c_str(), label.data(), static_cast<DWORD>(label.size()), nullptr,
                            nullptr, nullptr, nullptr, 0) == 0) {
    return {};
  }
  return FromWide(label.data());
}

// The mutex exists for as long as somebody holds it open, and the system closes it at the end of
// the process.
class HeldLock final : public FolderLock {
 public:
  explicit HeldLock(HANDLE mutex) : mutex_(mutex) {}

 private:
  FileHandle mutex_;
};

}  // namespace

WindowsFileSystem::WindowsFileSystem(const Text& text) : text_(text), names_(text) {
  // A drive without a medium is an answer, not a question of the system to the user.
  SetErrorMode(GetErrorMode() | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);

  current_.drive = 'C';
  const auto start = FromHostPath(FromWide(WorkingFolder()));
  if (start) current_ = *ParseWindowsPath(*start, current_);
}

WindowsFileSystem::CheckedPath WindowsFileSystem::PathToLookFor(const std::string& path) const {
  std::optional<WindowsPath> parsed = ParseWindowsPath(path, current_);
  if (!parsed) return {FileError::kNotFound, {}, {}};
  if (!parsed->HasOnlyWindowsNames() || parsed->Joined().size() > kLongestPath) {
    return {FileError::kBadName, {}, {}};
  }
  std::wstring wide = WidePath(*parsed, names_);
  return {FileError::kNone, std::move(*parsed), std::move(wide)};
}

WindowsFileSystem::CheckedPath WindowsFileSystem::PathToMake(const std::string& path) const {
  CheckedPath checked = PathToLookFor(path);
  if (checked.error == FileError::kNotFound) checked.error = FileError::kBadName;
  const bool is_root = checked.error == FileError::kNone && checked.path.names.empty();
  if (is_root) checked.error = FileError::kAlreadyExists;
  return checked;
}

WindowsFileSystem::CheckedPath WindowsFileSystem::PathToChange(const std::string& path) const {
  CheckedPath checked = PathToLookFor(path);
  const bool is_root = checked.error == FileError::kNone && checked.path.names.empty();
  if (is_root) checked.error = FileError::kAccessDenied;
  return checked;
}

AttributesResult WindowsFileSystem::Attributes(const std::string& path) {
  const CheckedPath checked = PathToLookFor(path);
  if (checked.error != FileError::kNone) return {checked.error, {}};
  const DiskAttributes found = AttributesOf(checked.wide);
  return {found.error, found.attributes, found.size};
}

Listing WindowsFileSystem::List(const std::string& pattern) {
  const std::optional<ListPattern> parsed = ParseListPattern(pattern, current_);
  if (!parsed) return {FileError::kNotFound, {}, {}};
  const CheckedPath checked = PathToLookFor(parsed->folder.Joined());
  if (checked.error != FileError::kNone) return {checked.error, {}, {}};
  return ListFolder(checked.wide, names_, parsed->names).listing;
}

std::unique_ptr<FolderReader> WindowsFileSystem::OpenFolder(const std::string& folder) {
  const CheckedPath checked = PathToLookFor(folder);
  if (checked.error != FileError::kNone) {
    return std::make_unique<WindowsFolderReader>(checked.error, names_);
  }
  return std::make_unique<WindowsFolderReader>(checked.wide, names_);
}

ReadResult WindowsFileSystem::Read(const std::string& path, std::size_t limit) {
  const CheckedPath checked = PathToLookFor(path);
  if (checked.error != FileError::kNone) return {checked.error, {}};
  const FileHandle file = OpenExisting(checked.wide, GENERIC_READ);
  if (!file.IsOpen()) {
    const FileError error = ErrorUnless(false, checked.wide);
    const DWORD attributes = GetFileAttributesW(checked.wide.c_str());
    const bool folder =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return {folder ? FileError::kIsAFolder : error, {}};
  }
  return ReadUpTo(file, limit);
}

std::optional<std::uint64_t> WindowsFileSystem::FreeRoom(const std::string& folder) {
  const CheckedPath checked = PathToLookFor(folder);
  ULARGE_INTEGER room = {};
  if (checked.error != FileError::kNone ||
      GetDiskFreeSpaceExW(checked.wide.c_str(), &room, nullptr, nullptr) == 0) {
    return std::nullopt;
  }
  return room.QuadPart;
}

bool WindowsFileSystem::MayMakeFilesIn(const std::string& folder) {
  const CheckedPath checked = PathToLookFor(folder);
  return checked.error == FileError::kNone && AttributesOf(checked.wide).attributes.folder &&
         OpenToAsk(checked.wide, FILE_ADD_FILE | FILE_ADD_SUBDIRECTORY).IsOpen();
}

std::optional<FileIdentity> WindowsFileSystem::Identity(const std::string& path) {
  const CheckedPath checked = PathToLookFor(path);
  if (checked.error != FileError::kNone) return std::nullopt;
  return IdentityOf(checked.wide);
}

std::string WindowsFileSystem::CurrentFolder() { return current_.Joined(); }

FileError WindowsFileSystem::SetCurrentFolder(const std::string& folder) {
  CheckedPath checked = PathToLookFor(folder);
  if (checked.error != FileError::kNone) return checked.error;

  // The process follows, and with it the programs that it starts and the system's dialogs.
  const FileError error =
      ErrorUnless(SetCurrentDirectoryW(checked.wide.c_str()) != 0, checked.wide);
  if (error == FileError::kNone) current_ = std::move(checked.path);
  return error;
}

std::vector<Drive> WindowsFileSystem::Drives() {
  std::vector<Drive> drives;
  const DWORD present = GetLogicalDrives();
  for (unsigned number = 0; number < 26; ++number) {
    if ((present & (1U << number)) == 0) continue;
    WindowsPath root;
    root.drive = static_cast<char>('A' + number);
    drives.push_back({root.drive, LabelOf(WidePath(root, names_))});
  }
  return drives;
}

std::string WindowsFileSystem::HostPath(const std::string& path) {
  const CheckedPath checked = PathToLookFor(path);
  if (checked.error != FileError::kNone) return {};

  WindowsPath root;
  root.drive = checked.path.drive;
  if (GetDriveTypeW(WidePath(root, names_).c_str()) == DRIVE_NO_ROOT_DIR) return {};
  return FromWide(DiskSpelling(checked.path, names_));
}

std::optional<std::string> WindowsFileSystem::FromHostPath(std::string_view host_path) {
  std::string path(host_path);
  std::replace(path.begin(), path.end(), '/', '\\');
  // The long form of a path on a drive is `\\?\X:\name`.
  constexpr std::string_view kLongForm = R"(\\?\)";
  const bool is_long = path.substr(0, kLongForm.size()) == kLongForm;
  if (is_long && path.size() > 5 && path[5] == ':') path.erase(0, kLongForm.size());

  const CoreName whole = names_.FromHost(path);
  if (whole.use == NameUse::kNotInCodePage) return std::nullopt;
  const CheckedPath checked = PathToLookFor(whole.bytes);
  if (checked.error != FileError::kNone) return std::nullopt;
  return checked.path.Joined();
}

std::string WindowsFileSystem::FromCommandLine(const std::string& typed) {
  std::string path = typed;
  std::replace(path.begin(), path.end(), '/', '\\');
  const CheckedPath checked = PathToLookFor(path);
  return checked.error == FileError::kNone ? checked.path.Joined() : typed;
}

LockResult WindowsFileSystem::LockFolder(const std::string& folder) {
  const CheckedPath checked = PathToLookFor(folder);
  LockResult result;
  if (checked.error != FileError::kNone) return result;
  const DiskAttributes found = AttributesOf(checked.wide);
  const auto identity = IdentityOf(checked.wide);
  if (!found.attributes.folder || !identity) return result;

  // One name for the folder, whichever way a path leads to it and whoever is logged on.
  const std::wstring name = L"Global\\Vellumark-" + std::to_wstring(identity->device) + L"-" +
                            std::to_wstring(identity->index);
  HANDLE mutex = CreateMutexW(nullptr, FALSE, name.c_str());
  const DWORD code = GetLastError();
  if (mutex == nullptr) {
    // Another user's, which this one may not open.
    if (code == ERROR_ACCESS_DENIED) result.answer = LockAnswer::kHeldByAnother;
    return result;
  }
  auto lock = std::make_unique<HeldLock>(mutex);
  if (code == ERROR_ALREADY_EXISTS) {
    result.answer = LockAnswer::kHeldByAnother;
    return result;
  }
  result.answer = LockAnswer::kTaken;
  result.lock = std::move(lock);
  return result;
}

}  // namespace vellumark
