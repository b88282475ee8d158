#include "platform/windows/desktop/windows_shell.h"

#include <windows.h>
// Needs windows.h.
#include <shellapi.h>

#include <string_view>

#include "platform/windows/wide_text.h"

namespace vellumark {
namespace {

bool IsProgram(const std::wstring& file) {
  constexpr std::wstring_view kEnding = L".exe";
  return file.size() >= kEnding.size() &&
         CompareStringOrdinal(&file[file.size() - kEnding.size()], -1, kEnding.data(), -1, TRUE) ==
             CSTR_EQUAL;
}

std::string SystemWordsFor(DWORD error) {
  std::wstring words(512, L'\0');
  words.resize(FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                              error, 0, words.data(), static_cast<DWORD>(words.size()), nullptr));
  return FromWide(words);
}

}  // namespace

bool WindowsShell::Open(const std::string& document, const std::string& parameters,
                        const std::string& working_folder, bool hidden) {
  if (document.empty()) return false;
  const std::wstring file = ToWide(document);
  const std::wstring arguments = ToWide(parameters);
  const std::wstring folder = ToWide(working_folder);

  const bool is_program = IsProgram(file);
  SHELLEXECUTEINFOW request = {};
  request.cbSize = sizeof request;
  request.fMask = SEE_MASK_FLAG_NO_UI | (is_program ? SEE_MASK_NOCLOSEPROCESS : 0);
  request.lpVerb = L"open";
  request.lpFile = file.c_str();
  request.lpParameters = arguments.empty() ? nullptr : arguments.c_str();
  request.lpDirectory = folder.empty() ? nullptr : folder.c_str();
  request.nShow = hidden ? SW_HIDE : SW_SHOWNORMAL;
  const bool opened = ShellExecuteExW(&request) != 0;
  const DWORD error = opened ? ERROR_SUCCESS : GetLastError();
  if (is_program) {
    process_.reset(opened ? request.hProcess : nullptr);
    refusal_ = opened ? "" : SystemWordsFor(error);
  }
  return opened;
}

// One that is gone has its folder opened.
bool WindowsShell::ShowInFolder(const std::string& file) {
  const std::wstring wide = ToWide(file);
  if (GetFileAttributesW(wide.c_str()) == INVALID_FILE_ATTRIBUTES) {
    return Open(file.substr(0, file.rfind('\\') + 1), "", "", false);
  }
  // Named whole: the current folder may hold another program of this name.
  std::wstring explorer(MAX_PATH, L'\0');
  explorer.resize(GetWindowsDirectoryW(explorer.data(), MAX_PATH));
  explorer += L"\\explorer.exe";
  const std::wstring select = L"/select,\"" + wide + L"\"";
  const HINSTANCE answer =
      ShellExecuteW(nullptr, L"open", explorer.c_str(), select.c_str(), nullptr, SW_SHOWNORMAL);
  constexpr INT_PTR kLastFailure = 32;
  return reinterpret_cast<INT_PTR>(answer) > kLastFailure;
}

StartedProgram WindowsShell::LastStarted() {
  StartedProgram started{.last_words = refusal_};
  DWORD code = 0;
  started.ended = process_ != nullptr && WaitForSingleObject(process_.get(), 0) == WAIT_OBJECT_0 &&
                  GetExitCodeProcess(process_.get(), &code) != 0;
  started.exit_code = code;
  return started;
}

void WindowsShell::Closer::operator()(void* handle) const { CloseHandle(handle); }

}  // namespace vellumark
