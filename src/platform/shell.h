// Opening documents and starting programs as a double click would.
#ifndef VELLUMARK_PLATFORM_SHELL_H_
#define VELLUMARK_PLATFORM_SHELL_H_

#include <string>

namespace vellumark {

class Shell {
 public:
  virtual ~Shell() = default;

  // Opens `document`: a program is started with `parameters`, anything else is opened in the
  // user's default program for its type. `document` and `working_folder` are host paths
  // (FileSystem::HostPath), `parameters` is UTF-8; `hidden` asks for no visible window. Does not
  // wait for what it started. False when the document is missing or the system refuses.
  virtual bool Open(const std::string& document, const std::string& parameters,
                    const std::string& working_folder, bool hidden) = 0;

  // The name of a program that `document` needs to be opened and that this system lacks (Wine, for
  // a Windows program on Linux); empty when nothing is known to be missing.
  virtual std::string MissingFor(const std::string& document) = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_SHELL_H_
