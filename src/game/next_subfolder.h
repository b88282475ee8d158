// The archive's next numbered sub-folder.
#ifndef VELLUMARK_GAME_NEXT_SUBFOLDER_H_
#define VELLUMARK_GAME_NEXT_SUBFOLDER_H_

#include <string>

#include "platform/file_system.h"

namespace vellumark {

struct Program;

// Makes the sub-folder with the first number that is free. `folder` gets its path, on failure that
// of the folder that could not be made.
FileError MakeNextSubfolder(Program& program, std::string& folder);

}  // namespace vellumark

#endif  // VELLUMARK_GAME_NEXT_SUBFOLDER_H_
