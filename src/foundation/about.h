// What the program is, and what it is made of.
#ifndef VELLUMARK_FOUNDATION_ABOUT_H_
#define VELLUMARK_FOUNDATION_ABOUT_H_

#include <optional>
#include <string>
#include <string_view>

namespace vellumark {

struct Program;

// Shows the version, the program's licence and the licences of what is inside.
void ShowAbout(Program& program);

// The answer to an argument that asks about the program itself ("--version", "--help", "-h"), as
// lines for a terminal; nothing for any other.
std::optional<std::string> TerminalAnswer(std::string_view argument);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_ABOUT_H_
