// Setting savegames aside that the program's rules would otherwise destroy.
#ifndef VELLUMARK_FOUNDATION_RESCUE_H_
#define VELLUMARK_FOUNDATION_RESCUE_H_

#include <string>
#include <vector>

#include "foundation/failures.h"

namespace vellumark {

struct Program;

struct Rescue {
  std::string folder;             // `rescued\<n>` beside the program; empty when nothing was moved
  std::vector<Failure> failures;  // files that are still where they were
};

// Makes a new folder `rescued\<n>` beside the program, n being the next free number. `folder` gets
// its path, on failure that of the folder that could not be made.
FileError MakeRescueFolder(Program& program, std::string& folder);

// Moves files into a new folder `rescued\<n>` beside the program, n being the next free number.
// They keep their names, so the folder is an ordinary slot folder.
Rescue SetAside(Program& program, const std::vector<std::string>& paths);

// Moves one more file into the folder of `rescue`, which it makes for the first file. A name that
// is there already stays. False on failure, which `rescue` then names.
bool SetAsideToo(Program& program, const std::string& path, Rescue& rescue);

}  // namespace vellumark

#endif  // VELLUMARK_FOUNDATION_RESCUE_H_
