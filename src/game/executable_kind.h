// What a program file is, told by its header before it is started.
#ifndef VELLUMARK_GAME_EXECUTABLE_KIND_H_
#define VELLUMARK_GAME_EXECUTABLE_KIND_H_

#include <string>
#include <string_view>

namespace vellumark {

class FileSystem;

enum class ProgramKind {
  kForeign,    // not made for Windows: the system knows whether it can start it
  kBroken,     // begins as a program for Windows, but is none
  kWindows32,  // for Windows, 32 bit
  kWindows,    // for Windows, of another kind or one that the beginning does not tell
  kUnreadable
};

// The kind of a file with this beginning; `whole` says that the file ends there. Nothing in the
// bytes is relied on.
ProgramKind KindOfProgram(std::string_view beginning, bool whole);

ProgramKind ReadProgramKind(FileSystem& files, const std::string& path);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_EXECUTABLE_KIND_H_
