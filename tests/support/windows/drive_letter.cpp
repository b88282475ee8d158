#include "support/windows/drive_letter.h"

#include <windows.h>
// Needs windows.h.
#include <winioctl.h>

#include <cstring>
#include <vector>

namespace vellumark::testing {
namespace {

// Under Wine a drive is a link in the prefix. DefineDosDevice knows nothing of these links, so
// Wine's mount manager is asked itself, in its own form.
struct WineDrive {
  ULONG size;
  ULONG type;
  ULONG file_system_type;
  DWORD serial;
  ULONGLONG unix_device;
  WCHAR letter;
  USHORT mount_point_offset;
  USHORT device_offset;
  USHORT label_offset;
};

constexpr DWORD kDefineUnixDrive =
    CTL_CODE(0x6D, 32, METHOD_BUFFERED, FILE_READ_ACCESS | FILE_WRITE_ACCESS);

using UnixFileName = char*(CDECL*)(const wchar_t* path);

// Null on Windows itself.
UnixFileName FindUnixFileName() {
  const FARPROC found =
      GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name");
  UnixFileName function = nullptr;
  std::memcpy(&function, &found, sizeof found);
  return function;
}

bool DefineWineDrive(char letter, const std::string& unix_path, ULONG type) {
  WineDrive drive = {};
  std::vector<char> request(sizeof drive + unix_path.size() + 1);
  drive.size = static_cast<ULONG>(request.size());
  drive.type = type;
  drive.letter = static_cast<WCHAR>(letter);
  drive.mount_point_offset = sizeof drive;
  std::memcpy(request.data(), &drive, sizeof drive);
  std::memcpy(request.data() + sizeof drive, unix_path.c_str(), unix_path.size());

  HANDLE manager =
      CreateFileW(L"\\\\.\\MountPointManager", GENERIC_READ | GENERIC_WRITE,
                  FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  if (manager == INVALID_HANDLE_VALUE) return false;
  DWORD answered = 0;
  const bool defined = DeviceIoControl(manager, kDefineUnixDrive, request.data(), drive.size,
                                       nullptr, 0, &answered, nullptr) != 0;
  CloseHandle(manager);
  return defined;
}

std::wstring DeviceOf(char letter) { return {static_cast<wchar_t>(letter), L':'}; }

}  // namespace

bool DefineDrive(char letter, const std::wstring& folder) {
  const UnixFileName unix_file_name = FindUnixFileName();
  if (unix_file_name == nullptr) {
    return DefineDosDeviceW(0, DeviceOf(letter).c_str(), folder.c_str()) != 0;
  }
  char* const unix_path = unix_file_name(folder.c_str());
  if (unix_path == nullptr) return false;
  const bool defined = DefineWineDrive(letter, unix_path, DRIVE_FIXED);
  HeapFree(GetProcessHeap(), 0, unix_path);
  return defined;
}

void RemoveDrive(char letter) {
  if (FindUnixFileName() != nullptr) {
    DefineWineDrive(letter, {}, DRIVE_NO_ROOT_DIR);
  } else {
    DefineDosDeviceW(DDD_REMOVE_DEFINITION, DeviceOf(letter).c_str(), nullptr);
  }
}

}  // namespace vellumark::testing
