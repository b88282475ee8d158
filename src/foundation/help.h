// The help command.
#ifndef VELLUMARK_FOUNDATION_HELP_H_
#define VELLUMARK_FOUNDATION_HELP_H_

namespace vellumark {

struct Program;

// Opens the help text in the user's program for texts, or says where it is missed.
void ShowHelp(Program& program);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_HELP_H_
