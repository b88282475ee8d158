// The files that come with the program: pictures, sounds and the help text.
#ifndef VELLUMARK_FOUNDATION_COMPANION_FILES_H_
#define VELLUMARK_FOUNDATION_COMPANION_FILES_H_

#include <string>
#include <string_view>

#include "foundation/program_paths_state.h"

namespace vellumark {

class FileSystem;

// Where such a file is, by its name behind a backslash: in the program folder, else in the
// installed place. The path in the program folder when it is in neither.
std::string CompanionFile(FileSystem& files, const ProgramPaths& paths, std::string_view tail);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_COMPANION_FILES_H_
