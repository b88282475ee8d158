#include "platform/system_services.h"

#include <windows.h>

#include <array>
#include <string>

#include "platform/common/code_page_tables.h"
#include "platform/common/code_page_text.h"
#include "platform/windows/wide_text.h"
#include "platform/windows/windows_file_system.h"

namespace vellumark {
namespace {

// The user's language, for example "tr".
std::string Language() {
  std::array<wchar_t, LOCALE_NAME_MAX_LENGTH> name = {};
  if (GetUserDefaultLocaleName(name.data(), static_cast<int>(name.size())) == 0) return {};
  const std::string locale = FromWide(name.data());
  return locale.substr(0, locale.find('-'));
}

}  // namespace

// A code page without a table takes several bytes a character (or is UTF-8, which does, too).
std::unique_ptr<Text> MakeSystemText() {
  const int code_page = static_cast<int>(GetACP());
  return std::make_unique<CodePageText>(code_page, Language(), UpperHalf(code_page).empty());
}

std::unique_ptr<FileSystem> MakeSystemFileSystem(const Text& text) {
  return std::make_unique<WindowsFileSystem>(text);
}

void ReadAheadForFirstWindow() {}

}  // namespace vellumark
