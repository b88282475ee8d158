// Opening documents and starting programs as a double click would.
#ifndef VELLUMARK_PLATFORM_SHELL_H_
#define VELLUMARK_PLATFORM_SHELL_H_

#include <cstdint>
#include <string>

namespace vellumark {

// What this system lacks to start a program.
struct MissingPart {
  enum class Kind {
    kNothing,      // nothing is known to be missing
    kWine,         // a Windows program needs it on Linux
    kWineFor32Bit  // the Wine that is there runs only 64-bit programs
  };
  Kind kind = Kind::kNothing;
  std::string package{};  // what to install; empty where that is not known
};

// What became of a program after its start.
struct StartedProgram {
  bool ended = false;  // false, too, when that cannot be known
  std::uint32_t exit_code = 0;
  // UTF-8, one line: why the system refused the start, or what was said last before the end on the
  // program's behalf. Empty when nothing was.
  std::string last_words{};
};

class Shell {
 public:
  virtual ~Shell() = default;

  // Opens `document`: a program is started with `parameters`, anything else is opened in the
  // user's default program for its type. `document` and `working_folder` are host paths
  // (FileSystem::HostPath), `parameters` is UTF-8; `hidden` asks for no visible window. Does not
  // wait for what it started, which lives on when this program ends. False when the document is
  // missing or the system refuses.
  virtual bool Open(const std::string& document, const std::string& parameters,
                    const std::string& working_folder, bool hidden) = 0;

  // Shows a file in the user's file manager, selected where the desktop can do that; else the
  // folder that it lies in. `file` is a host path. False when the folder is missing or the system
  // refuses.
  virtual bool ShowInFolder(const std::string& file) = 0;

  // How the program does that Open was given last. Documents do not count. Does not wait.
  virtual StartedProgram LastStarted() = 0;

  // What is missing to start `document` (a host path). A start without it would fail for certain.
  virtual MissingPart MissingFor(const std::string& document, bool is_32_bit) = 0;
};

}  // namespace vellumark

#endif  // VELLUMARK_PLATFORM_SHELL_H_
