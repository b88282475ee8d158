// Opening documents by the shell of Windows.
#ifndef VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_SHELL_H_
#define VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_SHELL_H_

#include <memory>

#include "platform/shell.h"

namespace vellumark {

class WindowsShell final : public Shell {
 public:
  bool Open(const std::string& document, const std::string& parameters,
            const std::string& working_folder, bool hidden) override;
  bool ShowInFolder(const std::string& file) override;
  StartedProgram LastStarted() override;
  MissingPart MissingFor(const std::string& /*document*/, bool /*is_32_bit*/) override {
    return {};
  }

 private:
  struct Closer {
    using pointer = void*;
    void operator()(void* handle) const;
  };
  std::unique_ptr<void, Closer> process_;  // of the program that was started last
  std::string refusal_;                    // of the last start, in the system's words
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_SHELL_H_
