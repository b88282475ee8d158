// Opening documents by the shell of Windows.
#ifndef VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_SHELL_H_
#define VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_SHELL_H_

#include "platform/shell.h"

namespace vellumark {

class WindowsShell final : public Shell {
 public:
  bool Open(const std::string& document, const std::string& parameters,
            const std::string& working_folder, bool hidden) override;
  std::string MissingFor(const std::string& document) override;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_WINDOWS_DESKTOP_WINDOWS_SHELL_H_
