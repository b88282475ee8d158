// Which programs this user has chosen, or has said yes to, and so may be started. An archive file
// may come from somebody else, and it names a program.
#ifndef VELLUMARK_ARCHIVE_TRUSTED_PROGRAMS_H_
#define VELLUMARK_ARCHIVE_TRUSTED_PROGRAMS_H_

#include <string>

namespace vellumark {

struct Program;

// By the program's full path. What cannot be read of the file that remembers is not trusted.
bool IsTrustedProgram(Program& program, const std::string& path);

// Remembers a program for this run and, where the file can be written, for the later ones.
void TrustProgram(Program& program, const std::string& path);

}  // namespace vellumark

#endif  // VELLUMARK_ARCHIVE_TRUSTED_PROGRAMS_H_
