// The question before a program is started for the first time.
#ifndef VELLUMARK_GAME_START_QUESTION_H_
#define VELLUMARK_GAME_START_QUESTION_H_

#include <string>

namespace vellumark {

struct Program;

// True for a program that the user has chosen or confirmed before; any other is asked about, and a
// yes is remembered.
bool MayStartProgram(Program& program, const std::string& path);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_START_QUESTION_H_
