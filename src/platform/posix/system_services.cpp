#include "platform/system_services.h"

#include <dlfcn.h>

#include <cstdlib>
#include <string>

#include "platform/common/code_page_text.h"
#include "platform/posix/code_page_choice.h"
#include "platform/posix/drive_map.h"
#include "platform/posix/posix_file_system.h"

namespace vellumark {
namespace {

std::string Environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

}  // namespace

std::unique_ptr<Text> MakeSystemText() {
  const CodePageChoice choice =
      ChooseCodePage(LocaleName([](const char* name) { return std::getenv(name); }));
  return std::make_unique<CodePageText>(choice.code_page, choice.language, choice.substitute);
}

std::unique_ptr<FileSystem> MakeSystemFileSystem(const Text& text) {
  const std::string home = Environment("HOME");
  return std::make_unique<PosixFileSystem>(text, ReadDriveMap(Environment("WINEPREFIX"), home),
                                           home);
}

void ReadAheadForFirstWindow() {
  // The library stays loaded: the windows use the configuration that it has read.
  void* library = dlopen("libfontconfig.so.1", RTLD_LAZY);
  if (library == nullptr) return;
  using InitFunction = int (*)();
  if (const auto init = reinterpret_cast<InitFunction>(dlsym(library, "FcInit"))) init();
}

}  // namespace vellumark
