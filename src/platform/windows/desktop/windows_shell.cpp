#include "platform/windows/desktop/windows_shell.h"

#include <windows.h>
// Needs windows.h.
#include <shellapi.h>

#include "platform/windows/wide_text.h"

namespace vellumark {

bool WindowsShell::Open(const std::string& document, const std::string& parameters,
                        const std::string& working_folder, bool hidden) {
  if (document.empty()) return false;
  const std::wstring file = ToWide(document);
  const std::wstring arguments = ToWide(parameters);
  const std::wstring folder = ToWide(working_folder);

  SHELLEXECUTEINFOW request = {};
  request.cbSize = sizeof request;
  request.fMask = SEE_MASK_FLAG_NO_UI;
  request.lpVerb = L"open";
  request.lpFile = file.c_str();
  request.lpParameters = arguments.empty() ? nullptr : arguments.c_str();
  request.lpDirectory = folder.empty() ? nullptr : folder.c_str();
  request.nShow = hidden ? SW_HIDE : SW_SHOWNORMAL;
  return ShellExecuteExW(&request) != 0;
}

std::string WindowsShell::MissingFor(const std::string& /*document*/) { return {}; }

}  // namespace vellumark
